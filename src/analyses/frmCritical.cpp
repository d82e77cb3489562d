// The event routines of the critical and peak viewer.
#include "analyses/frmCritical.h"

#include "analyses/critical_text.h"
#include "analyses/day_analysis.h"
#include "analyses/person_title.h"
#include "controls/month_view.h"
#include "controls/twips.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "shell/frmWait.h"
#include "shell/main_controls.h"
#include "store/databases.h"
#include "store/interpretation.h"
#include "store/person_entry.h"
#include "store/statements.h"
#include "ui_frmCritical.h"

namespace {

constexpr int kGroup = 1;
constexpr int kTodayItem = 1;
constexpr int kCriticalItem = 2;

// Emotional, physical, intellectual and average, 0xBBGGRR.
constexpr std::array<Long, 4> kColours{0xFF0000, 0x0000FF, 0x008000, 0x400040};

std::vector<ButtonBar::Item> views() {
    return {{QStringLiteral("Today"), QIcon(QStringLiteral(":/art/today.png"))},
            {QStringLiteral("Critical/Peak"), QIcon(QStringLiteral(":/art/critical.png"))}};
}

void showDay(ColouredLabel& label, const FoundDay& day) {
    label.setText(day.text);
    label.setFontBold(day.isToday);
}

template <class Slots, class Finds>
void showCycle(const Slots& slots, const Finds& finds) {
    for (std::size_t i = 0; i < finds.critical.size(); ++i)
        showDay(*slots.critical[i], finds.critical[i]);
    for (std::size_t i = 0; i < finds.peaks.size(); ++i) {
        showDay(*slots.peaks[i], finds.peaks[i]);
        slots.smiles[i]->setVisible(finds.peaks[i].state == modCycles::DayState::Peak);
        slots.sads[i]->setVisible(finds.peaks[i].state == modCycles::DayState::Low);
    }
}

}  // namespace

frmCritical::frmCritical(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmCritical>()) {
    ui_->setupUi(this);
    ui_->bbDetails->setGroup(QStringLiteral("Details"), views());
    lblToday_ = {ui_->lblToday_0, ui_->lblToday_1, ui_->lblToday_2, ui_->lblToday_3};
    bars_ = {ui_->barEmot, ui_->barPhys, ui_->barIntel, ui_->barAverage};
    gatherSlots();
    gatherViews();
    colourCycles();
    ui_->lineBars->setLeft(kBaseLine);
    ui_->lineBars->setWidth(kTwipsPerPixel);
    onEvent(ui_->bbDetails, &ButtonBar::Click, this, &frmCritical::bbDetails_Click);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmCritical::cmdClose_Click);
    onEvent(ui_->dtpCritical, &DatePicker::Change, this, &frmCritical::dtpCritical_Change);
}

frmCritical::~frmCritical() = default;

void frmCritical::gatherSlots() {
    slots_ = {{{.critical = {ui_->lblEmot_0, ui_->lblEmot_1, ui_->lblEmot_2},
                .peaks = {ui_->lblEmotPeak_0, ui_->lblEmotPeak_1, ui_->lblEmotPeak_2},
                .smiles = {ui_->imgSmileE_0, ui_->imgSmileE_1, ui_->imgSmileE_2},
                .sads = {ui_->imgSadE_0, ui_->imgSadE_1, ui_->imgSadE_2}},
               {.critical = {ui_->lblPhys_0, ui_->lblPhys_1, ui_->lblPhys_2, ui_->lblPhys_3},
                .peaks = {ui_->lblPhysPeak_0, ui_->lblPhysPeak_1, ui_->lblPhysPeak_2},
                .smiles = {ui_->imgSmileP_0, ui_->imgSmileP_1, ui_->imgSmileP_2},
                .sads = {ui_->imgSadP_0, ui_->imgSadP_1, ui_->imgSadP_2}},
               {.critical = {ui_->lblIntel_0, ui_->lblIntel_1},
                .peaks = {ui_->lblIntelPeak_0, ui_->lblIntelPeak_1},
                .smiles = {ui_->imgSmileI_0, ui_->imgSmileI_1},
                .sads = {ui_->imgSadI_0, ui_->imgSadI_1}}}};
}

void frmCritical::gatherViews() {
    todayView_ = {ui_->pnlToday, ui_->rtbInterp};
    criticalView_ = {ui_->Shape1, ui_->Line1,    ui_->Line2,      ui_->Line3,
                     ui_->Line4,  ui_->Label1_1, ui_->Label2,     ui_->Label3,
                     ui_->Label4, ui_->Label5,   ui_->rtbCritical};
    const auto add = [this](const auto& controls) {
        criticalView_.insert(criticalView_.end(), controls.begin(), controls.end());
    };
    for (const Slots& cycle : slots_) {
        add(cycle.critical);
        add(cycle.peaks);
        add(cycle.smiles);
        add(cycle.sads);
    }
}

void frmCritical::colourCycles() {
    const std::array<std::vector<ColouredLabel*>, 4> captions{{{ui_->Label1_0, ui_->Label1_1},
                                                               {ui_->Label7_1, ui_->Label2},
                                                               {ui_->Label7_2, ui_->Label3},
                                                               {ui_->Label7_3}}};
    const auto colour = [](const std::vector<ColouredLabel*>& labels, Long foreColor) {
        for (ColouredLabel* label : labels)
            label->setForeColor(foreColor);
    };
    for (std::size_t i = 0; i < captions.size(); ++i) {
        colour(captions[i], kColours[i]);
        lblToday_[i]->setForeColor(kColours[i]);
        bars_[i]->setColour(kColours[i]);
        if (i < slots_.size()) {
            colour(slots_[i].critical, kColours[i]);
            colour(slots_[i].peaks, kColours[i]);
        }
    }
}

// The choice of the view analyses the day, and then the load does: what goes wrong is told twice.
void frmCritical::Form_Load() {
    setToolTips();
    openPerson();
    ui_->dtpCritical->setValue(mainControls().dtpSelDate->Value());
    bbDetails_Click(kGroup, kTodayItem);
    AnalyseDay();
    FillCriticalText();
    unloadWaitWindow();
}

void frmCritical::Form_Unload() {
    adoFindBirth_.reset();
    connection_.reset();
}

void frmCritical::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmCritical::bbDetails_Click(int /*group*/, int item) {
    if (item != kTodayItem && item != kCriticalItem)
        return;
    const bool isToday = item == kTodayItem;
    ui_->bbDetails->setChosenItem(item);
    SetTodayView(isToday);
    ui_->dtpCritical->setCustomFormat(isToday ? QStringLiteral("d MMMM yyyy")
                                              : QStringLiteral("MMMM yyyy"));
    AnalyseDay();
}

void frmCritical::cmdClose_Click() {
    Unload();
}

void frmCritical::dtpCritical_Change() {
    AnalyseDay();
}

void frmCritical::setToolTips() {
    for (const Slots& cycle : slots_) {
        for (QLabel* sad : cycle.sads)
            sad->setToolTip(QStringLiteral("Oh bugger..."));
        for (QLabel* smile : cycle.smiles)
            smile->setToolTip(QStringLiteral("Happy days are here again!"));
    }
}

void frmCritical::openPerson() {
    connection_ = openPersonDatabase();
    adoFindBirth_.emplace(*connection_, statements::person(chosenNameId()));
    const Date birthdate = adoFindBirth_->Fields(u"birthdate").toDate();
    setWindowTitle(QStringLiteral("Details for ") +
                   personTitle(fullName(*adoFindBirth_), birthdate));
}

// The picker stands on the first of the month while the days are looked for. What code sets there
// is no change.
void frmCritical::AnalyseDay() {
    trapped(this, [this] {
        const Date birthdate = adoFindBirth_->Fields(u"birthdate").toDate();
        const Integer savedDay = ui_->dtpCritical->Day();
        const DayReading reading = readDay(birthdate, ui_->dtpCritical->Value());
        showReading(reading);
        ui_->dtpCritical->setDay(1);
        showFinds({});
        showFinds(searchSpan(birthdate, ui_->dtpCritical->Value(), host().today()));
        ui_->dtpCritical->setDay(savedDay);
        showInterpretation(reading.levels);
    });
}

void frmCritical::showReading(const DayReading& reading) {
    ui_->lblAge->setText(reading.age);
    for (std::size_t i = 0; i < lblToday_.size(); ++i) {
        DrawBar(reading.percent[i], *bars_[i]);
        lblToday_[i]->setText(reading.percentTexts[i]);
    }
    ui_->lblDateToday->setText(reading.date);
}

void frmCritical::DrawBar(double value, BarShape& bar) {
    const Bar drawn = barOf(value);
    bar.setLeft(drawn.left);
    bar.setWidth(drawn.width);
}

void frmCritical::showFinds(const SpanFinds& finds) {
    const auto& [emotional, physical, intellectual] = slots_;
    showCycle(emotional, finds.emotional);
    showCycle(physical, finds.physical);
    showCycle(intellectual, finds.intellectual);
}

void frmCritical::showInterpretation(const modCycles::DayLevels& levels) {
    ui_->rtbInterp->setText(
        readInterpretation(levels.emotional, levels.physical, levels.intellectual).toText());
}

void frmCritical::FillCriticalText() {
    const CriticalText explanation = criticalText();
    RichTextBox& box = *ui_->rtbCritical;
    box.setText(explanation.text);
    for (const StyledRange& range : explanation.ranges) {
        box.setSelStart(range.start);
        box.setSelLength(range.length);
        box.setSelBold(range.isBold);
        box.setSelFontSize(range.points);
        box.setSelColor(range.colour);
    }
    box.setSelStart(0);
}

void frmCritical::SetTodayView(bool today) {
    for (QWidget* control : todayView_)
        control->setVisible(today);
    for (QWidget* control : criticalView_)
        control->setVisible(!today);
}
