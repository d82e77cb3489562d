// The main window: the list of people, their chart, and the commands.
#pragma once

#include <memory>
#include <optional>

#include "controls/form.h"
#include "cycles/date.h"
#include "shell/date_scroll.h"
#include "shell/main_controls.h"

class QAction;

namespace Ui {
class frmMain;
}

// The hub of the program, and its shared state: it puts its controls in force for every other form.
// Closing it ends the program. It reads its controls, asks the routines beside it, and shows what
// they answer; it knows no form that a command opens.
class frmMain final : public Form {
    Q_OBJECT

  public:
    frmMain();
    ~frmMain() override;

    // A command's menu entry, by its name. There must be one.
    QAction& command(const char* name);

    // Whether the chart follows the quick birth date instead of the list.
    bool QuickMode = false;

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void setUpControls();
    void setUpToolbar();
    void connectEvents();

    void cbCategory_Click();
    void chtMain_MouseMove(double x, double y);
    void cmdDecrease_Click();
    void cmdIncrease_Click();
    void cmdQuickGo_Click();
    void cmdReturn_Click();
    void dtpSelDate_SelChange();
    void lstMain_Click();
    void mnuFileExit_Click();
    void mnuQuickBio_Click();
    void mnuViewHide_Click();
    void mnuViewRefresh_Click();

    void ApplyQuickMode();
    void chartQuickBirthdate();
    void chartSelectedPerson();
    void chartBirthdate(Date birthdate, const QString& title);
    std::optional<modCycles::ScrollUnit> scrollUnit();
    void showPanel(bool visible);

    std::unique_ptr<Ui::frmMain> ui_;
    ButtonMenu* favesMenu_ = nullptr;
    MainControls controls_{};
};
