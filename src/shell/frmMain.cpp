// The event routines of the main window.
#include "shell/frmMain.h"

#include <QAction>

#include "controls/button_menu.h"
#include "controls/chart.h"
#include "controls/twips.h"
#include "cycles/calendar.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "shell/chart_days.h"
#include "shell/chart_pointer.h"
#include "shell/date_scroll.h"
#include "shell/favourites_menu.h"
#include "shell/main_chart.h"
#include "shell/main_lists.h"
#include "store/databases.h"
#include "store/person_entry.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "ui_frmMain.h"

namespace {

constexpr int kUnfoldedWidth = 9075;      // twips
constexpr int kFoldedWidth = 3700;        // twips
constexpr QSizeF kChartSize(5055, 3615);  // twips

}  // namespace

frmMain::frmMain() : ui_(std::make_unique<Ui::frmMain>()) {
    ui_->setupUi(this);
    setUpToolbar();
    controls_ = {ui_->lstMain, ui_->cbCategory, ui_->listCats, ui_->dtpSelDate,   ui_->lblTitle,
                 ui_->chtMain, ui_->sbMain,     favesMenu_,    ui_->flFavePerson, ui_->cmdDetails};
    setMainControls(&controls_);
    setUpControls();
    connectEvents();
}

frmMain::~frmMain() {
    setMainControls(nullptr);
}

void frmMain::setUpControls() {
    ui_->lstMain->setSorted(true);
    ui_->cbCategory->setSorted(true);
    for (const QString& unit : modCycles::scrollUnitNames())
        ui_->cmbScroll->AddItem(unit);
    ui_->chtMain->setFixedTwips(kChartSize, QRectF(modCycles::kPlotLeft, modCycles::kPlotTop,
                                                   modCycles::kPlotRight - modCycles::kPlotLeft,
                                                   modCycles::kPlotBottom - modCycles::kPlotTop));
    ui_->chtMain->setMarkedRow(1);
    // The chart begins where the list does.
    ui_->lblTitle->setMinimumHeight(ui_->cbCategory->sizeHint().height());
    ui_->lstMain->setFocus();
    showPanel(true);
}

// A button of the toolbar presses its menu entry. "Faves" has no entry: it opens its own menu.
void frmMain::setUpToolbar() {
    const std::initializer_list<std::pair<QAction*, QAction*>> buttons{
        {ui_->tlbMain_Add, ui_->mnuFileExplore},      {ui_->tlbMain_Hide, ui_->mnuViewHide},
        {ui_->tlbMain_Compat, ui_->mnuMatchDabatase}, {ui_->tlbMain_Group, ui_->mnuGroup},
        {ui_->tlbMain_Help, ui_->mnuHelpContents},    {ui_->tlbMain_About, ui_->mnuHelpAbout}};
    for (const auto& [button, entry] : buttons)
        connect(button, &QAction::triggered, entry, &QAction::trigger);

    favesMenu_ = new ButtonMenu(this);
    modCycles::startFavouritesMenu(*favesMenu_);
    favesMenu_->dropFrom(*ui_->tlbMain, *ui_->tlbMain_Faves);
}

QAction& frmMain::command(const char* name) {
    auto* entry = findChild<QAction*>(QString::fromLatin1(name));
    Q_ASSERT(entry);
    return *entry;
}

void frmMain::connectEvents() {
    onEvent(ui_->cbCategory, &ComboBox::Click, this, &frmMain::cbCategory_Click);
    onEvent(ui_->chtMain, &Chart::MouseMove, this, &frmMain::chtMain_MouseMove);
    onEvent(ui_->cmdDecrease, &PictureButton::Click, this, &frmMain::cmdDecrease_Click);
    onEvent(ui_->cmdIncrease, &PictureButton::Click, this, &frmMain::cmdIncrease_Click);
    onEvent(ui_->cmdQuickGo, &PictureButton::Click, this, &frmMain::cmdQuickGo_Click);
    onEvent(ui_->cmdReturn, &PictureButton::Click, this, &frmMain::cmdReturn_Click);
    onEvent(ui_->dtpSelDate, &MonthView::SelChange, this, &frmMain::dtpSelDate_SelChange);
    onEvent(ui_->lstMain, &ListBox::Click, this, &frmMain::lstMain_Click);
    onEvent(ui_->mnuFileExit, &QAction::triggered, this, &frmMain::mnuFileExit_Click);
    onEvent(ui_->mnuQuickBio, &QAction::triggered, this, &frmMain::mnuQuickBio_Click);
    onEvent(ui_->mnuViewHide, &QAction::triggered, this, &frmMain::mnuViewHide_Click);
    onEvent(ui_->mnuViewRefresh, &QAction::triggered, this, &frmMain::mnuViewRefresh_Click);
}

// The list of categories selects everybody, which lists the people and draws the blank chart.
void frmMain::Form_Load() {
    QuickMode = false;
    modCycles::askForPerson();
    modCycles::FillCategoryList();
    ui_->cmbScroll->setListIndex(0);
    modCycles::FillFavouritesMenu();
    ui_->dtpSelDate->setValue(host().today());
    ui_->dtpQuickBio->setValue(host().today());
}

// The end of the main window is the end of every form; the latest goes first.
void frmMain::Form_Unload() {
    while (Form::forms().back() != this)
        Form::forms().back()->Unload();
}

void frmMain::cbCategory_Click() {
    modCycles::FillPersonListByCategory();
}

void frmMain::lstMain_Click() {
    if (QuickMode)
        chartQuickBirthdate();
    else
        chartSelectedPerson();
}

void frmMain::chartQuickBirthdate() {
    const Date birthdate = ui_->dtpQuickBio->Value();
    if (modCycles::isQuickDateRefused(birthdate, ui_->dtpSelDate->MinDate())) {
        host().showMessage({.text = modCycles::quickDateRefusal(),
                            .icon = MessageIcon::Exclamation,
                            .owner = this});
        return;
    }
    chartBirthdate(birthdate, modCycles::quickChartTitle());
}

void frmMain::chartSelectedPerson() {
    if (ui_->lstMain->ListIndex() == -1)
        return;
    Connection connection = openPersonDatabase();
    const Recordset person(connection, statements::person(chosenNameId()));
    chartBirthdate(person.Fields(u"birthdate").toDate(), modCycles::chartTitle(fullName(person)));
}

// The calendar raises its value to the birth date, if that is later, before the chart starts there.
void frmMain::chartBirthdate(Date birthdate, const QString& title) {
    ui_->lblTitle->setText(title);
    ui_->dtpSelDate->setMinDate(birthdate);
    const Date startdate = ui_->dtpSelDate->Value();
    modCycles::RedrawMainChart(birthdate, startdate);
    const QString values = modCycles::dayPanelText(modCycles::chartDays(birthdate, startdate)[0]);
    ui_->sbMain->setPanelText(values);
    ui_->sbMain->setPanelToolTip(values);
}

void frmMain::dtpSelDate_SelChange() {
    if (ui_->lstMain->ListIndex() != -1 && ui_->dtpSelDate->MinDate() <= ui_->dtpSelDate->Value())
        lstMain_Click();
}

// The unit that the arrows scroll by. Without a person there is none; without a choice either, and
// the user is told.
std::optional<modCycles::ScrollUnit> frmMain::scrollUnit() {
    if (ui_->lstMain->ListIndex() == -1)
        return std::nullopt;
    const auto unit = modCycles::scrollUnitAt(ui_->cmbScroll->ListIndex());
    if (!unit)
        host().showMessage({.text = modCycles::scrollUnitIsMissing(), .owner = this});
    return unit;
}

void frmMain::cmdDecrease_Click() {
    const auto unit = scrollUnit();
    if (!unit)
        return;
    MonthView& calendar = *ui_->dtpSelDate;
    calendar.setValue(modCycles::decreasedDate(calendar.Value(), *unit, calendar.MinDate()));
    lstMain_Click();
}

void frmMain::cmdIncrease_Click() {
    const auto unit = scrollUnit();
    if (!unit)
        return;
    MonthView& calendar = *ui_->dtpSelDate;
    calendar.setValue(modCycles::increasedDate(calendar.Value(), *unit));
    lstMain_Click();
}

void frmMain::chtMain_MouseMove(double x, double y) {
    ui_->chtMain->setToolTipText({});
    ui_->chtMain->setMousePointer(MousePointerShape::Default);
    if (!modCycles::isOverPlot(x, y))
        return;
    ui_->chtMain->setMousePointer(MousePointerShape::ArrowQuestion);
    if (const auto band = modCycles::bandAt(x))
        ui_->chtMain->setToolTipText(modCycles::ChartPointText(*band));
}

void frmMain::mnuQuickBio_Click() {
    QuickMode = !QuickMode;
    ApplyQuickMode();
}

void frmMain::cmdReturn_Click() {
    mnuQuickBio_Click();
}

void frmMain::ApplyQuickMode() {
    for (QWidget* control : std::initializer_list<QWidget*>{ui_->lblBirth, ui_->dtpQuickBio,
                                                            ui_->cmdReturn, ui_->cmdQuickGo})
        control->setVisible(QuickMode);
    for (QWidget* control :
         std::initializer_list<QWidget*>{ui_->lstMain, ui_->cbCategory, ui_->lblFilter})
        control->setVisible(!QuickMode);
    ui_->mnuViewDetails->setEnabled(!QuickMode);
    ui_->mnuCompatibility->menuAction()->setEnabled(!QuickMode);
    ui_->mnuReport->setEnabled(!QuickMode);
    ui_->cmdDetails->setEnabled(!QuickMode);
    ui_->tlbMain->setEnabled(!QuickMode);
    ui_->lstMain->setListIndex(-1);
    ui_->dtpSelDate->setMinDate(modCycles::kEarliestCalendarDate);
    modCycles::ShowBlankChart();
}

// In quick mode the hidden list has a selection once a date has been charted, so that the calendar
// and the arrows work.
void frmMain::cmdQuickGo_Click() {
    if (ui_->lstMain->ListIndex() == -1)
        ui_->lstMain->setListIndex(0);
    lstMain_Click();
}

void frmMain::mnuFileExit_Click() {
    Unload();
}

void frmMain::mnuViewRefresh_Click() {
    modCycles::FillPersonList();
    modCycles::FillCategoryList();
}

void frmMain::mnuViewHide_Click() {
    showPanel(ui_->pnlChart->isHidden());
    Refresh();
}

// The panel is everything to the right of the list.
void frmMain::showPanel(bool visible) {
    ui_->mnuViewHide->setChecked(visible);
    ui_->tlbMain_Hide->setChecked(visible);
    ui_->pnlChart->setVisible(visible);
    setFixedWidth(toPixels(visible ? kUnfoldedWidth : kFoldedWidth));
}
