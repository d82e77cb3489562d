// "Quick Match": the chosen person and any birth date.
#pragma once

#include <memory>
#include <optional>

#include "controls/form.h"
#include "store/connection.h"
#include "store/recordset.h"

namespace Ui {
class frmQuick;
}

// Compares the person who is chosen in the main window with the date that is picked: at each change
// of it, and when asked to. Nothing is shown before the first comparison. Writes nothing.
class frmQuick final : public Form {
    Q_OBJECT

  public:
    explicit frmQuick(QWidget* owner = nullptr);
    ~frmQuick() override;

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    void cmdClose_Click();
    void cmdGo_Click();
    void dtpQuick_Change();

    std::unique_ptr<Ui::frmQuick> ui_;
    std::optional<Connection> connection_;
    std::optional<Recordset> adoFindBirth_;
};
