// The commands of the main window that open a form, ask for help or go by the favourites.
#pragma once

#include <QObject>

class frmMain;

// Each command is an event routine of its menu entry; the toolbar's buttons press those entries. A
// command tests that a person is chosen where it needs one, opens its form over the main window,
// and owns it until it closes.
class Commands final : public QObject {
    Q_OBJECT

  public:
    // The window must be there whenever a command is given.
    explicit Commands(frmMain& window);

  private:
    void cmdDetails_Click();
    void lstMain_DblClick();
    void mnuAddNew_Click();
    void mnuBToday_Click();
    void mnuFileAdd_Click();
    void mnuFileCat_Click();
    void mnuFileExplore_Click();
    void mnuFind_Click();
    void mnuGroup_Click();
    void mnuHelpAbout_Click();
    void mnuHelpContents_Click();
    void mnuMatchDabatase_Click();
    void mnuQuickMatch_Click();
    void mnuReport_Click();
    void mnuToolsImport_Click();
    void tlbMain_ButtonMenuClick(int index);

    template <class F>
    void openSlowForm();

    // Whether there is a person; without one the user gets the request.
    bool isPersonChosen(const QString& request);
    bool mayTalkToPrinter();

    frmMain& window_;
};
