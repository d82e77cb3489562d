// The event routines of the commands.
#include "commands.h"

#include <QAction>

#include "analyses/frmBirthdayToday.h"
#include "analyses/frmCompat.h"
#include "analyses/frmCritical.h"
#include "analyses/frmFind.h"
#include "analyses/frmGroup.h"
#include "analyses/frmQuick.h"
#include "controls/button_menu.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/picture_button.h"
#include "import/frmImport.h"
#include "records/frmAdd.h"
#include "records/frmAddNew.h"
#include "records/frmCategory.h"
#include "records/frmExplore.h"
#include "records/frmZoom.h"
#include "reports/dlgScreenPrinter.h"
#include "reports/frmDailyReport.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "shell/favourites_menu.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmManageFaves.h"
#include "shell/frmWait.h"
#include "shell/handover.h"

namespace {

QString needOfAPerson() {
    return QStringLiteral("Please select a person from the list.");
}

}  // namespace

Commands::Commands(frmMain& window) : window_(window) {
    const auto onCommand = [&](const char* entry, auto routine) {
        onEvent(&window.command(entry), &QAction::triggered, this, routine);
    };
    onCommand("mnuAddNew", &Commands::mnuAddNew_Click);
    onCommand("mnuBToday", &Commands::mnuBToday_Click);
    onCommand("mnuFileAdd", &Commands::mnuFileAdd_Click);
    onCommand("mnuFileCat", &Commands::mnuFileCat_Click);
    onCommand("mnuFileExplore", &Commands::mnuFileExplore_Click);
    onCommand("mnuFind", &Commands::mnuFind_Click);
    onCommand("mnuGroup", &Commands::mnuGroup_Click);
    onCommand("mnuHelpAbout", &Commands::mnuHelpAbout_Click);
    onCommand("mnuHelpContents", &Commands::mnuHelpContents_Click);
    onCommand("mnuMatchDabatase", &Commands::mnuMatchDabatase_Click);
    onCommand("mnuQuickMatch", &Commands::mnuQuickMatch_Click);
    onCommand("mnuReport", &Commands::mnuReport_Click);
    onCommand("mnuToolsImport", &Commands::mnuToolsImport_Click);
    onCommand("mnuViewDetails", &Commands::cmdDetails_Click);
    onEvent(mainControls().cmdDetails, &PictureButton::Click, this, &Commands::cmdDetails_Click);
    onEvent(mainControls().lstMain, &ListBox::DblClick, this, &Commands::lstMain_DblClick);
    onEvent(mainControls().mnuFaves, &ButtonMenu::ButtonMenuClick, this,
            &Commands::tlbMain_ButtonMenuClick);
}

// The wait window stands in for a slow form; the form unloads it when it has been loaded.
template <class F>
void Commands::openSlowForm() {
    showWaitWindow();
    F(&window_).ShowModal();
}

bool Commands::isPersonChosen(const QString& request) {
    const bool isChosen = mainControls().lstMain->ListIndex() != -1;
    if (!isChosen)
        host().showMessage({.text = request, .owner = &window_});
    return isChosen;
}

void Commands::cmdDetails_Click() {
    if (isPersonChosen(QStringLiteral("Select a person from the list first.")))
        openSlowForm<frmCritical>();
}

void Commands::mnuMatchDabatase_Click() {
    if (isPersonChosen(needOfAPerson()))
        openSlowForm<frmCompat>();
}

void Commands::mnuQuickMatch_Click() {
    if (isPersonChosen(needOfAPerson()))
        frmQuick(&window_).ShowModal();
}

void Commands::mnuFind_Click() {
    if (isPersonChosen(needOfAPerson()))
        frmFind(&window_).ShowModal();
}

void Commands::mnuReport_Click() {
    if (!isPersonChosen(needOfAPerson()))
        return;
    modCycles::ReportToScreen = true;
    dlgScreenPrinter(&window_).ShowModal();
    if (modCycles::ReportToScreen || mayTalkToPrinter())
        openSlowForm<frmDailyReport>();
}

bool Commands::mayTalkToPrinter() {
    const Message question{
        .text = QStringLiteral(
            "Ondara needs to communicate with the printer to collect information. Make sure the "
            "printer is switched on, or a printer error will occur.\n\nDo you wish to "
            "continue?"),
        .title = QStringLiteral("Printer communication"),
        .icon = MessageIcon::Information,
        .buttons = MessageButtons::YesNo,
        .owner = &window_};
    return host().showMessage(question) == Answer::Yes;
}

// The card opens for whoever is selected; with nobody selected, reading the number fails.
void Commands::lstMain_DblClick() {
    showCard(chosenNameId(), &window_);
}

void Commands::mnuAddNew_Click() {
    frmAddNew(&window_).ShowModal();
}

void Commands::mnuBToday_Click() {
    frmBirthdayToday(&window_).ShowModal();
}

void Commands::mnuFileAdd_Click() {
    openSlowForm<frmAdd>();
}

void Commands::mnuFileCat_Click() {
    openSlowForm<frmCategory>();
}

void Commands::mnuFileExplore_Click() {
    openSlowForm<frmExplore>();
    modCycles::SelectedNameID = 0;
}

void Commands::mnuGroup_Click() {
    openSlowForm<frmGroup>();
}

void Commands::mnuHelpAbout_Click() {
    frmAbout(&window_).ShowModal();
}

void Commands::mnuHelpContents_Click() {
    host().showHelp(&window_, QStringLiteral("ondarahelp.chm"));
}

void Commands::mnuToolsImport_Click() {
    frmImport(&window_).ShowModal();
}

void Commands::tlbMain_ButtonMenuClick(int index) {
    trapped(&window_, [&] {
        const QString key = mainControls().mnuFaves->Key(index);
        if (key == modCycles::kAddFavesKey)
            modCycles::addFavourite();
        else if (key == modCycles::kManageFavesKey)
            frmManageFaves(&window_).ShowModal();
        else if (key.isEmpty())
            modCycles::chooseFavourite(mainControls().mnuFaves->Text(index),
                                       *mainControls().cbCategory, *mainControls().lstMain,
                                       &window_);
    });
}
