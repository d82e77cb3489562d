// The form that deletes favourites.
#pragma once

#include <memory>

#include "controls/form.h"

namespace Ui {
class frmManageFaves;
}

// Lists the files of the favourites and deletes the selected one, without a question. Its button
// and Esc rebuild the main window's menu; its title bar does not.
class frmManageFaves final : public Form {
    Q_OBJECT

  public:
    explicit frmManageFaves(QWidget* owner = nullptr);
    ~frmManageFaves() override;

  protected:
    void Form_Load() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    void cmdClose_Click();
    void cmdDelete_Click();

    void LockFaves(bool sett);

    std::unique_ptr<Ui::frmManageFaves> ui_;
};
