// The comparison with others: how it opens, and what it shows of one comparison.
#include "analyses/frmCompat.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <cmath>

#include "analyses/compat_driver.h"
#include "controls/coloured_label.h"
#include "controls/cycle_colours.h"
#include "controls/month_view.h"
#include "controls/picture_button.h"
#include "records/frmZoom.h"
#include "shell/frmWait.h"
#include "shell/handover.h"
#include "store/databases.h"
#include "store/favourites.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/next_form.h"

using modCycles::DateSerial;

namespace {

class Comparison : public CompatTest {
  protected:
    static bool isWaiting() {
        for (Form* form : Form::forms()) {
            if (dynamic_cast<frmWait*>(form))
                return true;
        }
        return false;
    }

    void expectColour(const char* label, Long colour) {
        EXPECT_EQ(of<ColouredLabel>(label).ForeColor(), colour) << label;
    }
};

TEST_F(Comparison, OpensOnTheFirstOfTheOthersWithNoRowSelected) {
    open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Compatibility: Anna Smith (Libra) and ..."));
    EXPECT_EQ(listed(), QStringList({kBen, kZed}));
    EXPECT_EQ(list().ListIndex(), -1);
    EXPECT_EQ(filter().ListIndex(), 0);
    expectMatchWith(QStringLiteral("Ben Adler"), kBenBorn);
    EXPECT_TRUE(bars().isVisible());
    EXPECT_FALSE(lines().isVisible());
    EXPECT_TRUE(of<QRadioButton>("optBar").isChecked());
    EXPECT_EQ(of<ButtonBar>("bbCompat").ChosenItem(), 1);
}

TEST_F(Comparison, CallsItsControlsByTheirTexts) {
    open();
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Apply filter:"));
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Emotional"));
    EXPECT_EQ(textOf("Label4"), QStringLiteral("Physical"));
    EXPECT_EQ(textOf("Label9"), QStringLiteral("Intellectual"));
    EXPECT_EQ(of<QGroupBox>("frChart").title(), QStringLiteral("Select chart "));
    EXPECT_EQ(of<QRadioButton>("optBio").text(), QStringLiteral("Biorhyth&m cycles"));
    EXPECT_EQ(of<QRadioButton>("optBar").text(), QStringLiteral("&Bar chart"));
    EXPECT_EQ(of<PictureButton>("cmdClose").text(), QStringLiteral("Close"));
    EXPECT_EQ(list().toolTip(), QStringLiteral("Doubleclick a name to see details"));
    EXPECT_EQ(child<QAction>(*form_, QStringLiteral("tbCompat_Faves")).toolTip(),
              QStringLiteral("Favourites"));
    EXPECT_EQ(of<QWidget>("bbCompat").accessibleName(), QStringLiteral("Compare"));
    EXPECT_EQ(of<QAbstractButton>("bbCompat_1").text(), QStringLiteral("Single Person"));
    EXPECT_EQ(of<QAbstractButton>("bbCompat_2").text(), QStringLiteral("Ordered Match"));
    for (const char* button : {"bbCompat_1", "bbCompat_2", "cmdSearch"})
        EXPECT_FALSE(of<QAbstractButton>(button).icon().isNull()) << button;
    EXPECT_FALSE(child<QAction>(*form_, QStringLiteral("tbCompat_Faves")).icon().isNull());
}

TEST_F(Comparison, GivesItsLabelsTheColoursOfTheCycles) {
    open();
    for (const char* label : {"Label3", "lblE"})
        expectColour(label, 0x800000);
    for (const char* label : {"Label4", "lblP"})
        expectColour(label, 0x0000FF);
    for (const char* label : {"Label9", "lblI"})
        expectColour(label, 0x008000);
    for (const char* label : {"lblAvg", "lblSign"})
        expectColour(label, 0x800080);
}

TEST_F(Comparison, FillsTheThermometerInTheColourOfTheAverage) {
    open();
    EXPECT_EQ(of<ProgressBar>("pgbAverage").palette().color(QPalette::Highlight),
              cycleColour(CycleColour::Average, form_->palette()));
}

TEST_F(Comparison, ComparesWithTheRowThatIsClicked) {
    open();
    clickRow(1);
    EXPECT_EQ(list().Text(), kZed);
    expectMatchWith(kZed, kZedBorn);
    clickRow(0);
    expectMatchWith(QStringLiteral("Ben Adler"), kBenBorn);
}

TEST_F(Comparison, WordsEachPercentageInATooltip) {
    open();
    const BirthdateMatch match = matchBirthdates(kAnnaBorn, kBenBorn);
    EXPECT_EQ(of<QLabel>("lblE").toolTip(), match.emotional.level);
    EXPECT_EQ(of<QLabel>("lblP").toolTip(), match.physical.level);
    EXPECT_EQ(of<QLabel>("lblI").toolTip(), match.intellectual.level);
}

TEST_F(Comparison, FillsTheThermometerWithTheUnroundedAverage) {
    open();
    const double average = matchBirthdates(kAnnaBorn, kBenBorn).percentages.average();
    EXPECT_NE(average, std::round(average));
    EXPECT_EQ(of<ProgressBar>("pgbAverage").Value(), average);
}

TEST_F(Comparison, ShowsTheMatchInBarsWithALegendBesideThem) {
    open();
    const ChartContent& content = bars().content();
    const modCycles::CycleValues percent = matchBirthdates(kAnnaBorn, kBenBorn).percentages;
    EXPECT_EQ(content.type, ChartType::Bars);
    EXPECT_EQ(content.table.rowLabels, QStringList(QString()));
    EXPECT_EQ(bars().Data(1, 1), percent.emotional);
    EXPECT_EQ(bars().Data(1, 2), percent.physical);
    EXPECT_EQ(bars().Data(1, 3), percent.intellectual);
    EXPECT_EQ(bars().Data(1, 4), percent.average());
    EXPECT_TRUE(content.showLegend);
    EXPECT_EQ(content.legendLocation, LegendLocation::Right);
    EXPECT_EQ(content.fontFamily, QStringLiteral("Arial"));
    EXPECT_EQ(content.series[0].legendText, QStringLiteral("Emot.: (") + textOf("lblE") + u')');
    EXPECT_TRUE(content.series[3].legendText.startsWith(QStringLiteral("Avg: (")));
}

TEST_F(Comparison, ShowsTheCyclesOfBothFromTheDateOfTheMainWindow) {
    loadAndChoose(kAnna);
    control<MonthView>("dtpSelDate").setValue(DateSerial(2001, 2, 3));
    openForChosen();
    const ChartTable& table = lines().content().table;
    EXPECT_EQ(lines().content().type, ChartType::Lines);
    EXPECT_EQ(table.columns.size(), 6U);
    EXPECT_EQ(table.rowLabels.first(), QStringLiteral("03/02/2001"));
    const Long days = modCycles::DayCount(kAnnaBorn, DateSerial(2001, 2, 3));
    EXPECT_EQ(lines().Data(31, 1), modCycles::CalcCycle(days, 30, "emot"));
    EXPECT_EQ(lines().ToolTipText(), QStringLiteral("Solid: Anna Smith     Dotted: Ben Adler"));
    EXPECT_FALSE(lines().ShowLegend());
}

TEST_F(Comparison, LeavesRoomForTheTextsAroundBothCharts) {
    open();
    clickOption("optBio");
    for (Chart* chart : {&bars(), &lines()}) {
        const ChartContent& content = chart->content();
        EXPECT_EQ(content.fontFamily, QStringLiteral("Arial"));
        EXPECT_GT(content.plotArea.left(), 0);
        EXPECT_GT(content.plotArea.top(), 0);
        EXPECT_LT(content.plotArea.right(), content.size.width());
        EXPECT_LT(content.plotArea.bottom(), content.size.height());
        EXPECT_GT(content.plotArea.width(), content.size.width() / 2);
    }
}

TEST_F(Comparison, DrawsTheMainPersonSolidAndTheOtherDottedInTheSameColours) {
    open();
    const std::vector<ChartSeries>& series = lines().content().series;
    for (std::size_t cycle = 0; cycle < 3; ++cycle) {
        EXPECT_EQ(series[cycle].pattern, PenPattern::Solid);
        EXPECT_EQ(series[cycle + 3].pattern, PenPattern::Dotted);
        EXPECT_EQ(series[cycle].colour, static_cast<CycleColour>(cycle));
        EXPECT_EQ(series[cycle + 3].colour, series[cycle].colour);
    }
}

TEST_F(Comparison, ShowsTheChartThatIsSelected) {
    open();
    clickOption("optBio");
    EXPECT_FALSE(bars().isVisible());
    EXPECT_TRUE(lines().isVisible());
    clickOption("optBar");
    EXPECT_TRUE(bars().isVisible());
    EXPECT_FALSE(lines().isVisible());
}

TEST_F(Comparison, LooksAtTheBarOptionAloneWhicheverIsClicked) {
    open();
    Q_EMIT of<QRadioButton>("optBio").clicked();
    EXPECT_TRUE(bars().isVisible());
    of<QRadioButton>("optBio").setChecked(true);
    Q_EMIT of<QRadioButton>("optBar").clicked();
    EXPECT_TRUE(lines().isVisible());
}

TEST_F(Comparison, TurnsBackToTheBarsForEveryNewOne) {
    open();
    clickOption("optBio");
    clickRow(1);
    EXPECT_TRUE(of<QRadioButton>("optBar").isChecked());
    EXPECT_TRUE(bars().isVisible());
    EXPECT_FALSE(lines().isVisible());
}

TEST_F(Comparison, OpensTheCardOfTheRowThatIsDoubleClicked) {
    open();
    clickRow(1);
    Long handedOver = 0;
    QString name;
    onNextForm<frmZoom>([&](frmZoom& card) {
        handedOver = modCycles::SelectedNameID;
        name = child<QLabel>(card, QStringLiteral("lblName")).text();
        EXPECT_TRUE(card.isModal());
        EXPECT_EQ(card.parentWidget(), form_.get());
    });
    const QModelIndex row = list().model()->index(1, 0);
    doubleClick(*list().viewport(), list().visualRect(row).center());
    EXPECT_EQ(handedOver, list().ItemData(1));
    EXPECT_EQ(name, QStringLiteral("Zed (15)"));
    EXPECT_EQ(modCycles::SelectedNameID, 0);
}

TEST_F(Comparison, EndsTheProgramForADoubleClickThatFindsNobodySelected) {
    open();
    ASSERT_EQ(list().ListIndex(), -1);
    host_.expectMessage(QStringLiteral("Run-time error '381':\n\nInvalid property array index"));
    QWidget& rows = *list().viewport();
    doubleClick(rows, rows.rect().bottomLeft() + QPoint(8, -8));
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(Comparison, OfTwoWhoWereBornOnOneDayIsWhole) {
    addPerson({.name = QStringLiteral("Aaron"), .birthdate = Value(kAnnaBorn)});
    open();
    EXPECT_EQ(textOf("lblE") + textOf("lblP") + textOf("lblI"), QStringLiteral("100%100%100%"));
    EXPECT_TRUE(textOf("lblText").contains(QStringLiteral("However,")));
    EXPECT_EQ(of<ProgressBar>("pgbAverage").Value(), 100);
}

TEST_F(Comparison, ReportsABirthDateThatIsNullAndKeepsTheOneBefore) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Smith"), .birthdate = Value(kAnnaBorn)});
    addPerson({.name = QStringLiteral("Adler"), .birthdate = Value(kBenBorn)});
    addPerson({.name = QStringLiteral("Undated"), .birthdate = Value()});
    openFor(QStringLiteral("Smith"));
    const QStringList before = shown();
    expectReport(QStringLiteral("Invalid use of Null"));
    clickRow(1);
    EXPECT_EQ(host_.messages().back().owner, form_.get());
    EXPECT_EQ(host_.messages().back().title, QString());
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(shown(), before);
}

TEST_F(Comparison, TakesTheWaitWindowAwayAsTheLastActOfItsLoad) {
    loadAndChoose(kAnna);
    writeFavourite({3, kZed});
    showWaitWindow();
    form_ = std::make_unique<frmCompat>(&window());
    bool wasFilled = false;
    const QObject context;
    QObject::connect(Form::forms().back(), &Form::unloaded, &context,
                     [&] { wasFilled = favourites() == QStringList(kZed); });
    form_->Load();
    EXPECT_TRUE(wasFilled);
    EXPECT_FALSE(isWaiting());
}

TEST_F(Comparison, SkipsTheRestOfItsLoadForAPersonWhoIsAlone) {
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE Name <> 'Smith'"));
    loadAndChoose(kAnna);
    writeFavourite({3, kZed});
    showWaitWindow();
    expectReport(QStringLiteral("Invalid property value"));
    openForChosen();
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(filter().ListCount(), 3);
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_EQ(favourites(), QStringList());
    EXPECT_FALSE(of<QWidget>("cmdSearch").isVisible());
    EXPECT_TRUE(isWaiting());
    unloadWaitWindow();
}

TEST_F(Comparison, ReportsAMainPersonWhoIsGone) {
    loadAndChoose(kAnna);
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE Name = 'Smith'"));
    expectReport(
        QStringLiteral("Either BOF or EOF is True, or the current record has been "
                       "deleted. Requested operation requires a current record"));
    openForChosen();
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(form_->windowTitle(), QString());
    EXPECT_FALSE(of<QWidget>("cmdSearch").isVisible());
}

TEST_F(Comparison, EndsTheProgramAtATabWhereItsLoadFailedBeforeTheFilter) {
    loadAndChoose(kAnna);
    runSql(directory_.people(), QStringLiteral("DROP TABLE Category"));
    expectReport(descriptionOf([] {
        Connection connection = openPersonDatabase();
        const Recordset categories(connection, statements::categories());
    }));
    openForChosen();
    EXPECT_EQ(listed(), QStringList({kBen, kZed}));
    host_.expectMessage(QStringLiteral("Run-time error '380':\n\nInvalid property value"));
    clickTab(2);
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(Comparison, GoesAtItsButtonAndReadsEverybodyAnewWhenItIsOpenedAgain) {
    open();
    clickTab(2);
    click(of<PictureButton>("cmdClose"));
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_FALSE(form_->isVisible());
    addPerson({.name = QStringLiteral("Berg"), .birthdate = Value(kBenBorn)});
    form_->Show();
    EXPECT_EQ(listed(), QStringList({kBen, QStringLiteral("Berg"), kZed}));
    EXPECT_EQ(of<ButtonBar>("bbCompat").ChosenItem(), 1);
    EXPECT_TRUE(list().isVisible());
}

}  // namespace
