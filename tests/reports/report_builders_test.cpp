// The building of reports from the databases.
#include "reports/report_builders.h"

#include <QFile>

#include "controls/month_view.h"
#include "controls/rich_text_box.h"
#include "shell/main_controls.h"
#include "support/errors.h"
#include "support/main_window.h"
#include "support/printing.h"

using namespace modCycles;

namespace {

class ReportBuilders : public MainWindowTest {
  protected:
    ReportBuilders() { loadAndChoose(QStringLiteral("Smith, Anna")); }

    void buildDay(double emotional, double physical, double intellectual, Integer colour = 1) {
        BuildDailyReport(chosenNameId(), emotional, physical, intellectual, 1.5, colour, box_);
    }

    // The interpretation that the report quotes.
    QString quotation() {
        const QString text = box_.Text();
        const qsizetype from = text.indexOf(u'"') + 1;
        return text.mid(from, text.lastIndexOf(u'"') - from);
    }

    QString interpretation(int emotional, int physical, int intellectual) {
        return valueOf(directory_.interpretation(),
                       QStringLiteral(
                           "SELECT interp FROM HLC WHERE Emot = %1 AND Phys = %2 AND Intel = %3")
                           .arg(emotional)
                           .arg(physical)
                           .arg(intellectual))
            .toText();
    }

    RichTextBox box_;
};

}  // namespace

TEST_F(ReportBuilders, QuoteTheInterpretationOfTheSigns) {
    buildDay(0.01, -0.01, 0);
    EXPECT_EQ(quotation(), interpretation(1, -1, 0));
    buildDay(0, 0, 0);
    EXPECT_EQ(quotation(), interpretation(0, 0, 0));
    buildDay(-0.01, 99, 2);
    EXPECT_EQ(quotation(), interpretation(-1, 1, 1));
}

TEST_F(ReportBuilders, TellTheValuesThatTheyAreGiven) {
    buildDay(11, -22, 33);
    EXPECT_TRUE(box_.Text().contains(
        u"Emotional: \t11%\r\nPhysical: \t-22%\r\nIntellectual: \t33%\r\nAverage: \t2%\r\n"));
}

TEST_F(ReportBuilders, AreOfTheSelectedDate) {
    mainControls().dtpSelDate->setValue(DateSerial(2001, 2, 3));
    buildDay(1, 2, 3);
    EXPECT_TRUE(box_.Text().contains(u"Biorhythm details for 3 February 2001"));
    BuildMonthlyReport(chosenNameId(), 1, box_);
    EXPECT_TRUE(box_.Text().contains(u"From 03/02/2001 to 06/03/2001"));
}

TEST_F(ReportBuilders, LeaveTheCaretAtTheEnd) {
    buildDay(1, 2, 3);
    EXPECT_EQ(box_.SelStart(), box_.document()->characterCount() - 1);
    EXPECT_GT(box_.SelStart(), 100);
    BuildMonthlyReport(chosenNameId(), 0, box_);
    EXPECT_EQ(box_.SelStart(), box_.document()->characterCount() - 1);
}

TEST_F(ReportBuilders, EmptyTheBoxForAColourThatIsNone) {
    box_.setText(QStringLiteral("before"));
    buildDay(1, 2, 3, 2);
    EXPECT_EQ(box_.Text(), QString());
    EXPECT_EQ(box_.SelStart(), 0);
    box_.setText(QStringLiteral("before"));
    BuildMonthlyReport(chosenNameId(), 2, box_);
    EXPECT_EQ(box_.Text(), QString());
}

TEST_F(ReportBuilders, FailWithoutWhatTheyAreBuiltFrom) {
    runSql(directory_.interpretation(), QStringLiteral("DELETE FROM HLC"));
    EXPECT_EQ(errorOf([this] { buildDay(1, 2, 3); }), 3021);
    QFile::remove(directory_.interpretation());
    EXPECT_EQ(errorOf([this] { buildDay(1, 2, 3); }), 53);
    EXPECT_EQ(errorOf([this] { BuildMonthlyReport(99, 1, box_); }), 3021);
}

TEST_F(ReportBuilders, ListEverybodyFromTheTop) {
    box_.setText(QStringLiteral("before"));
    box_.setSelStart(6);
    BuildDatabaseOverview(box_);
    EXPECT_TRUE(
        box_.Text().startsWith(u"Database Overview\r\nBen Adler\r\nDate of birth: \t5 May"));
    EXPECT_EQ(box_.SelStart(), 0);
}

TEST_F(ReportBuilders, SayThatOneMustWaitBeforeTheyFailForNobody) {
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    EXPECT_EQ(errorOf([this] { BuildDatabaseOverview(box_); }), 3021);
    EXPECT_EQ(box_.Text(), u"Please wait...");
}
