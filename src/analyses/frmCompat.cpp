// The event routines of the comparison with others.
#include "analyses/frmCompat.h"

#include <QToolButton>

#include "analyses/match_labels.h"
#include "analyses/person_comparison.h"
#include "controls/button_menu.h"
#include "controls/month_view.h"
#include "records/frmZoom.h"
#include "runtime/event.h"
#include "runtime/numbers.h"
#include "shell/favourites_menu.h"
#include "shell/frmWait.h"
#include "shell/main_controls.h"
#include "store/databases.h"
#include "store/list_fillers.h"
#include "store/statements.h"
#include "ui_frmCompat.h"

namespace {

// The group of the bar, and the first of its two items.
constexpr int kTabs = 1;
constexpr int kSinglePerson = 1;

constexpr int kCycles = 3;

constexpr Long kEmotionalColour = 0x800000;  // 0xBBGGRR

const QLatin1String kChartFont("Arial");
constexpr int kChartFontPoints = 8;

// In twips from the left, the top, the right and the bottom: room for the scale, the title, the
// legend beside the bars, and the dates below the lines.
constexpr QMarginsF kBarMargins(720, 420, 1950, 180);
constexpr QMarginsF kLineMargins(720, 180, 540, 480);

// Shows a widget in the place of another. With both of them in it the window would grow.
void showInPlaceOf(QWidget& gone, QWidget& shown) {
    gone.hide();
    shown.show();
}

}  // namespace

frmCompat::frmCompat(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmCompat>()) {
    ui_->setupUi(this);
    setUpControls();
    setUpToolbar();
    setUpCharts();
    connectEvents();
}

frmCompat::~frmCompat() = default;

void frmCompat::setUpControls() {
    ui_->bbCompat->setGroup(
        QStringLiteral("Compare"),
        {{QStringLiteral("Single Person"), QIcon(QStringLiteral(":/art/compatibility.png"))},
         {QStringLiteral("Ordered Match"), QIcon(QStringLiteral(":/art/ranking.png"))}});
    for (ColouredLabel* label : {ui_->Label3, ui_->lblE})
        label->setForeColor(kEmotionalColour);
    for (ColouredLabel* label : {ui_->Label4, ui_->lblP})
        label->setForeColor(kPhysicalMatchColour);
    for (ColouredLabel* label : {ui_->Label9, ui_->lblI})
        label->setForeColor(kIntellectualMatchColour);
    for (ColouredLabel* label : {ui_->lblAvg, ui_->lblSign})
        label->setForeColor(kAverageMatchColour);
    ui_->pgbAverage->setCycle(CycleColour::Average);
}

void frmCompat::setUpToolbar() {
    favesMenu_ = new ButtonMenu(this);
    favesMenu_->dropFrom(*ui_->tbCompat, *ui_->tbCompat_Faves).setFocusPolicy(Qt::TabFocus);
}

// The main person's cycles are the first three lines, and solid; the other's are dotted.
void frmCompat::setUpCharts() {
    Chart& bars = *ui_->chtCompatBars;
    bars.setChartType(ChartType::Bars);
    bars.setPlotMargins(kBarMargins);
    bars.setShowLegend(true);
    bars.setLegendLocation(LegendLocation::Right);
    bars.setLegendFont(kChartFont, kChartFontPoints);
    Chart& lines = *ui_->chtCompatLine;
    lines.setPlotMargins(kLineMargins);
    lines.setLegendFont(kChartFont, kChartFontPoints);
    for (int cycle = 0; cycle < kCycles; ++cycle) {
        const int series = kCycles + cycle + 1;
        lines.setSeriesColour(series, static_cast<CycleColour>(cycle));
        lines.setSeriesPattern(series, PenPattern::Dotted);
    }
}

void frmCompat::connectEvents() {
    onEvent(ui_->bbCompat, &ButtonBar::Click, this, &frmCompat::bbCompat_Click);
    onEvent(ui_->cbCatCompat, &ComboBox::Click, this, &frmCompat::cbCatCompat_Click);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmCompat::cmdClose_Click);
    onEvent(ui_->pnlOrdered, &OrderedMatchPage::cmdSearch_Click, this, &frmCompat::cmdSearch_Click);
    onEvent(ui_->lstCompat, &ListBox::Click, this, &frmCompat::lstCompat_Click);
    onEvent(ui_->lstCompat, &ListBox::DblClick, this, &frmCompat::lstCompat_DblClick);
    onEvent(ui_->optBar, &QRadioButton::clicked, this, &frmCompat::optBar_Click);
    onEvent(ui_->optBio, &QRadioButton::clicked, this, &frmCompat::optBio_Click);
    onEvent(favesMenu_, &ButtonMenu::ButtonMenuClick, this, &frmCompat::tbCompat_ButtonMenuClick);
}

// Choosing "*" at the end takes the selection away from the list; what it showed stays.
void frmCompat::Form_Load() {
    trapped(this, [this] {
        openRecordSets();
        mainPerson_ = comparedPerson(goTo(chosenNameId()));
        setWindowTitle(comparisonCaption(*mainPerson_));
        listEverybody();
        adoCats_.emplace(*connection_, statements::categories());
        ui_->cbCatCompat->fill(categoryFilter(categoryEntries(*adoCats_)));
        ui_->cbCatCompat->setListIndex(kEverybody);
        ui_->lstCompat->setListIndex(0);
        ui_->pnlOrdered->SetGrid();
        ui_->bbCompat->setChosenItem(kSinglePerson);
        bbCompat_Click(kTabs, kSinglePerson);
        FillCompatFavourites();
        unloadWaitWindow();
    });
}

void frmCompat::Form_Unload() {
    adoPrimaryRS_.reset();
    adoCats_.reset();
    connection_.reset();
}

void frmCompat::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmCompat::cmdClose_Click() {
    Unload();
}

void frmCompat::cmdSearch_Click() {
    trapped(this,
            [this] { ui_->pnlOrdered->search(*adoPrimaryRS_, *mainPerson_, *ui_->cbCatCompat); });
}

void frmCompat::openRecordSets() {
    connection_ = openPersonDatabase();
    adoPrimaryRS_.emplace(*connection_, statements::allPeopleWithNotes());
    adoPrimaryRS_->indexForFind(u"NameID");
}

const Recordset& frmCompat::goTo(Long nameId) {
    adoPrimaryRS_->MoveFirst();
    adoPrimaryRS_->Find(QStringLiteral("NameID = ") + numberText(nameId));
    return *adoPrimaryRS_;
}

// A change of the tab always goes back to "*".
void frmCompat::bbCompat_Click(int, int item) {
    const bool isSingle = item == kSinglePerson;
    ui_->Label1->setText(isSingle ? QStringLiteral("Apply filter:")
                                  : QStringLiteral("Select category:"));
    SingleView(isSingle);
    if (isSingle) {
        ui_->optBar->setChecked(true);
        optBar_Click();
    }
    ui_->cbCatCompat->setListIndex(kEverybody);
}

void frmCompat::SingleView(bool sg) {
    if (sg)
        showInPlaceOf(*ui_->pnlOrdered, *ui_->pnlSingle);
    else
        showInPlaceOf(*ui_->pnlSingle, *ui_->pnlOrdered);
    ui_->tbCompat->setVisible(sg);
}

void frmCompat::cbCatCompat_Click() {
    trapped(this, [this] {
        const int category = ui_->cbCatCompat->ListIndex();
        if (category == -1)
            return;
        if (category == kEverybody)
            listEverybody();
        else
            listCategory(ui_->cbCatCompat->ItemData(category));
    });
}

void frmCompat::listEverybody() {
    ui_->lstCompat->Clear();
    adoPrimaryRS_->MoveFirst();
    ui_->lstCompat->fill(othersThan(*mainPerson_, *adoPrimaryRS_));
}

void frmCompat::listCategory(Long catId) {
    ui_->lstCompat->Clear();
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::peopleOfCategory(catId));
    ui_->lstCompat->fill(othersThan(*mainPerson_, people));
}

void frmCompat::lstCompat_Click() {
    trapped(this, [this] {
        const ListBox& list = *ui_->lstCompat;
        if (list.ListIndex() == -1)
            return;
        const ComparedPerson other = comparedPerson(goTo(list.ItemData(list.ListIndex())));
        showComparison(comparePeople(*mainPerson_, other, mainControls().dtpSelDate->Value()));
        ui_->optBar->setChecked(true);
        optBar_Click();
    });
}

void frmCompat::showComparison(const PersonComparison& comparison) {
    const auto& [match, thermometer, bars, lines] = comparison;
    showMatch(match, {*ui_->lblE, *ui_->lblP, *ui_->lblI, *ui_->lblText, *ui_->lblSign});
    ui_->lblAvg->setText(thermometer);
    ui_->pgbAverage->setValue(match.percentages.average());
    ui_->chtCompatBars->setChartData(bars.table);
    for (int series = 1; const QString& text : bars.legend)
        ui_->chtCompatBars->setLegendText(series++, text);
    ui_->chtCompatBars->setTitle(bars.title);
    ui_->chtCompatLine->setChartData(lines.table);
    ui_->chtCompatLine->setToolTipText(lines.toolTip);
}

// Nobody selected: reading the number fails.
void frmCompat::lstCompat_DblClick() {
    showCard(ui_->lstCompat->ItemData(ui_->lstCompat->ListIndex()), this);
}

void frmCompat::optBar_Click() {
    if (ui_->optBar->isChecked())
        showInPlaceOf(*ui_->chtCompatLine, *ui_->chtCompatBars);
    else
        showInPlaceOf(*ui_->chtCompatBars, *ui_->chtCompatLine);
}

void frmCompat::optBio_Click() {
    optBar_Click();
}

void frmCompat::FillCompatFavourites() {
    modCycles::fillFavourites(
        *favesMenu_, 0, *mainControls().flFavePerson,
        [this](const QString& favourite) { return !isFavouriteOf(*mainPerson_, favourite); });
}

void frmCompat::tbCompat_ButtonMenuClick(int index) {
    trapped(this, [this, index] {
        if (favesMenu_->Key(index).isEmpty())
            modCycles::chooseFavourite(favesMenu_->Text(index), *ui_->cbCatCompat, *ui_->lstCompat,
                                       this);
    });
}
