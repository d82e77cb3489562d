// What Ondara is, its version, and whose it is.
#pragma once

#include <memory>

#include "controls/form.h"

namespace Ui {
class frmAbout;
}

// Changes nothing. Esc does what the button "OK" does.
class frmAbout final : public Form {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* owner = nullptr);
    ~frmAbout() override;

  protected:
    void Form_Load() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    void cmdOK_Click();
    void cmdSysInfo_Click();

    std::unique_ptr<Ui::frmAbout> ui_;
};
