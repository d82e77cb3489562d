// The event routines of the search for events.
#include "analyses/frmFind.h"

#include "controls/elided_label.h"
#include "controls/month_view.h"
#include "controls/progress_bar.h"
#include "records/dlgBZoom.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "runtime/numbers.h"
#include "shell/main_chart.h"
#include "shell/main_controls.h"
#include "store/databases.h"
#include "store/person_entry.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "ui_frmFind.h"

namespace {

constexpr int kDouble = 0;  // the entry of cbTriple; the other is for three cycles

constexpr int kProgressWidth = 160;  // pixels
constexpr int kSpaceAtEdge = 4;
constexpr int kSpaceBetweenPanels = 12;

// A slider keeps its length, whatever value is told beside it.
void makeRoomForLongestValue(QLabel& label, const QSlider& slider) {
    label.setMinimumWidth(label.fontMetrics().horizontalAdvance(numberText(slider.maximum())));
}

// Ticks all boxes where the button offers that, else none; then it offers the other.
void toggleAll(QPushButton& button, std::initializer_list<QCheckBox*> boxes) {
    const QString select = QStringLiteral("Select all");
    const bool isSelecting = button.text() == select;
    for (QCheckBox* box : boxes)
        box->setChecked(isSelecting);
    button.setText(isSelecting ? QStringLiteral("Deselect all") : select);
}

std::vector<ListEntry> entriesOf(std::initializer_list<const char*> texts) {
    std::vector<ListEntry> entries;
    for (const char* text : texts)
        entries.push_back({.text = QString::fromLatin1(text), .itemData = 0});
    return entries;
}

}  // namespace

frmFind::frmFind(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmFind>()) {
    ui_->setupUi(this);
    setUpStatusBar();
    ui_->cbSpan->fill(entriesOf({"Days", "Weeks", "Months", "Years"}));
    ui_->cbTriple->fill(entriesOf({"Double", "Triple"}));
    ui_->dtpStart->setCustomFormat(QStringLiteral("d MMM yyyy"));
    makeRoomForLongestValue(*ui_->lblSlider, *ui_->sldPeriod);
    connectEvents();
}

frmFind::~frmFind() = default;

// The text of a scan takes the place of the first two panels; the bar stands in the third.
void frmFind::setUpStatusBar() {
    auto* status = new QLabel(QStringLiteral("Ready"), this);
    status->setObjectName(QStringLiteral("sbFind_Status"));
    status->setContentsMargins(kSpaceAtEdge, 0, kSpaceBetweenPanels, 0);
    user_ = new ElidedLabel(this);
    user_->setObjectName(QStringLiteral("sbFind_User"));
    pbFind_ = new ProgressBar(this);
    pbFind_->setObjectName(QStringLiteral("pbFind"));
    pbFind_->setAccessibleName(QStringLiteral("Progress of the search"));
    pbFind_->setFixedWidth(kProgressWidth);
    ui_->sbFind->addWidget(status);
    ui_->sbFind->addWidget(user_, 1);
    ui_->sbFind->addPermanentWidget(pbFind_);
    pbFind_->hide();
}

void frmFind::connectEvents() {
    onEvent(ui_->chkCustom, &QCheckBox::toggled, this, &frmFind::chkCustom_Click);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmFind::cmdClose_Click);
    onEvent(ui_->cmdFind, &PictureButton::Click, this, &frmFind::cmdFind_Click);
    onEvent(ui_->cmdSelChar, &PictureButton::Click, this, &frmFind::cmdSelChar_Click);
    onEvent(ui_->cmdSelCycle, &PictureButton::Click, this, &frmFind::cmdSelCycle_Click);
    onEvent(ui_->lvFind, &ListView::ItemClick, this, &frmFind::lvFind_ItemClick);
    onEvent(ui_->sldPeriod, &QSlider::valueChanged, this, &frmFind::sldPeriod_Change);
}

void frmFind::Form_Load() {
    readPerson();
    ui_->chkCustom->setChecked(false);
    chkCustom_Click();
    ui_->cbTriple->setListIndex(0);
    ui_->cbSpan->setListIndex(0);
    ui_->sldPeriod->setValue(1);
    sldPeriod_Change();
    ui_->dtpStart->setValue(host().now());
    ui_->dtpStart->setMinDate(*BirthDate_);
    SavedDate_ = mainControls().dtpSelDate->Value();
}

void frmFind::readPerson() {
    Connection connection = openPersonDatabase();
    const Recordset person(connection, statements::person(chosenNameId()));
    BirthDate_ = person.Fields(u"birthdate").toDate();
    user_->setText(fullName(person));
}

void frmFind::Form_Unload() {
    modCycles::RedrawMainChart(*BirthDate_, *SavedDate_);
}

void frmFind::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        CancelSearch_ = true;
}

void frmFind::Form_Cancel() {
    CancelSearch_ = true;
}

void frmFind::cmdClose_Click() {
    Unload();
}

void frmFind::sldPeriod_Change() {
    ui_->lblSlider->setText(numberText(ui_->sldPeriod->value()));
}

void frmFind::chkCustom_Click() {
    const bool isCustom = ui_->chkCustom->isChecked();
    ui_->frameSpecial->setVisible(!isCustom);
    ui_->frameCustom->setVisible(isCustom);
    ui_->frameLegend->hide();
}

void frmFind::cmdSelChar_Click() {
    toggleAll(*ui_->cmdSelChar, {ui_->chkPeak, ui_->chkLow, ui_->chkCritical});
}

void frmFind::cmdSelCycle_Click() {
    toggleAll(*ui_->cmdSelCycle, {ui_->chkEmot, ui_->chkPhys, ui_->chkIntel});
}

void frmFind::cmdFind_Click() {
    work([this] { find(); });
}

void frmFind::find() {
    if (ui_->sldPeriod->value() == 0) {
        host().showMessage(
            {.text = QStringLiteral("Please select a value on the slider."), .owner = this});
        return;
    }
    const EventRange range = chosenRange();
    startResult(range);
    if (ui_->chkCustom->isChecked())
        findInCycles(range);
    else
        findShared(range);
    ui_->cmdFind->setFocus();
}

EventRange frmFind::chosenRange() const {
    const RangeDirection direction =
        ui_->optForward->isChecked() ? RangeDirection::Forward : RangeDirection::Back;
    return eventRange(*BirthDate_, ui_->dtpStart->Value(), direction,
                      static_cast<Integer>(ui_->sldPeriod->value()),
                      static_cast<RangeUnit>(ui_->cbSpan->ListIndex()));
}

void frmFind::startResult(const EventRange& range) {
    ui_->lblSpan->setText(rangeText(range));
    events_.clear();
    ui_->lvFind->Clear();
    ui_->lvFind->setColumns({});
    ui_->frameLegend->hide();
}

void frmFind::findShared(const EventRange& range) {
    const bool isTriple = ui_->cbTriple->ListIndex() != kDouble;
    const Integer kind = chosenKind();
    scan(range, searchStatus(), [&](auto goOn) {
        SearchCombined(range.SpanDays, range.DayBase, isTriple, kind, hits_, goOn);
    });
    events_ = isTriple ? tripleEvents(hits_, range.RangeStart, kind)
                       : doubleEvents(hits_, range.RangeStart);
    ui_->lvFind->setColumns(sharedColumns());
    showEvents(sharedRow);
    ui_->frameLegend->setVisible(!isTriple && areDays(events_));
}

Integer frmFind::chosenKind() const {
    if (ui_->optPeak->isChecked())
        return kPeakKind;
    return ui_->optLow->isChecked() ? kLowKind : kCriticalKind;
}

void frmFind::findInCycles(const EventRange& range) {
    ui_->lvFind->setColumns(cycleColumns());
    for (const auto& [box, cycle] :
         {std::pair(ui_->chkEmot, &kEmotionalSearch), std::pair(ui_->chkPhys, &kPhysicalSearch),
          std::pair(ui_->chkIntel, &kIntellectualSearch)}) {
        if (box->isChecked() && !isClosing())
            findInCycle(range, *cycle);
    }
}

void frmFind::findInCycle(const EventRange& range, const SearchedCycle& cycle) {
    scan(range, searchStatus(cycle),
         [&](auto goOn) { SearchCycle(range.SpanDays, range.DayBase, cycle.key, hits_, goOn); });
    const std::vector<FoundEvent> found = cycleEvents(hits_, cycle, range.RangeStart,
                                                      {.peak = ui_->chkPeak->isChecked(),
                                                       .low = ui_->chkLow->isChecked(),
                                                       .critical = ui_->chkCritical->isChecked()});
    events_.insert(events_.end(), found.begin(), found.end());
    showEvents(cycleRow);
}

void frmFind::showEvents(ListRow (*rowOf)(const FoundEvent&)) {
    ui_->lvFind->fill(static_cast<int>(events_.size()), [this, rowOf](int row) {
        return rowOf(events_[static_cast<std::size_t>(row)]);
    });
}

template <class Search>
void frmFind::scan(const EventRange& range, const QString& status, Search search) {
    startScan(status);
    search([this, spanDays = range.SpanDays](Long day) { return goOnAfter(day, spanDays); });
    endScan();
}

void frmFind::startScan(const QString& status) {
    pbFind_->setValue(0);
    pbFind_->show();
    ui_->sbFind->showMessage(status);
    ui_->sbFind->repaint();
    ui_->cmdFind->setEnabled(false);
    ui_->cmdClose->setEnabled(false);
}

bool frmFind::goOnAfter(Long day, Long spanDays) {
    pbFind_->setValue(rangeProgress(day, spanDays));
    if (CancelSearch_)
        return false;
    host().yield();
    return true;
}

void frmFind::endScan() {
    CancelSearch_ = false;
    pbFind_->hide();
    ui_->sbFind->clearMessage();
    ui_->sbFind->repaint();
    ui_->cmdFind->setEnabled(true);
    ui_->cmdClose->setEnabled(true);
}

void frmFind::lvFind_ItemClick(int row) {
    resumingNext([this, row] {
        const std::optional<Date> date = events_[static_cast<std::size_t>(row)].date;
        if (!date)
            return;
        modCycles::RedrawMainChart(*BirthDate_, *date);
        dlgBZoom(this).ShowModal();
    });
}
