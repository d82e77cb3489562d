// The document of the daily report.
#include "reports/daily_report.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "reports/report_pieces.h"
#include "reports/reported_person.h"
#include "support/printing.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

constexpr Integer kGrey = 2;

const ReportDay kDay{.date = DateSerial(2000, 3, 4),
                     .values = {.emotional = 62.3, .physical = -99.5, .intellectual = 5},
                     .average = -0.4,
                     .interpretation = QStringLiteral("A quiet day.")};

class DailyReport : public testing::Test {
  protected:
    QString document(Integer colour) { return dailyReport(kAnna, kDay, colour); }

    QString withNotes(const QString& notes) {
        ReportPerson person = kAnna;
        person.notes = notes;
        return dailyReport(person, kDay, kInColour);
    }

    RecordingHost host_;
};

}  // namespace

TEST_F(DailyReport, IsPutTogetherInColoursWithNothingBetweenThePieces) {
    EXPECT_EQ(
        document(kInColour),
        QStringLiteral(
            R"({\rtf1\ansi\ansicpg1252\deff0\deflang2057{\fonttbl{\f0\fswiss\fprq2\fcharset0 Arial;})"
            R"({\f1\fnil\fcharset0 Times New Roman;}})"
            R"({\colortbl ;\red0\green0\blue255;\red255\green0\blue0;\red0\green128\blue0;)"
            R"(\red128\green0\blue128;})"
            R"(\viewkind4\uc1\pard\qc\b\f0\fs28 Daily Report for Anna Smith{\par}{\par})"
            R"(\pard\b\fs20 Date of birth: \b0\tab Monday, 2 October 1972{\par})"
            R"(\b Star sign: \b0\tab Libra{\par})"
            R"(\b Gender: \b0\tab Female{\par})"
            R"(\b Category: \b0\tab Family{\par})"
            R"(\b Notes: \b0{\par}Likes tea.{\par})"
            R"(\pard\qc\i\b Biorhythm details for 4 March 2000{\par}\pard\par\b0)"
            R"(\cf1\i0\b Emotional: \b0\tab 62%{\par})"
            R"(\cf2\b Physical: \b0\tab -100%{\par})"
            R"(\cf3\b Intellectual: \b0\tab 5%{\par})"
            R"(\cf4\b Average: \b0\tab 0%{\par}{\par})"
            R"(\cf0\i Special characteristics: \i0{\par})"
            R"(\tab Emotional: None{\par})"
            R"(\tab\b Physical low \b0{\par})"
            R"(\tab\b Intellectual critical day \b0{\par})"
            R"(\f1\par{\par}\i "A quiet day." \i0{\par}\qc})"));
}

TEST_F(DailyReport, IsTheSameInBlackAndWhiteWithoutAColour) {
    QString expected = document(kInColour);
    expected.remove(kColourTable);
    for (const char* word : {"\\cf0", "\\cf1", "\\cf2", "\\cf3", "\\cf4"})
        expected.remove(QLatin1String(word));
    EXPECT_EQ(document(kBlackAndWhite), expected);
    EXPECT_FALSE(expected.contains(u"\\c"));
}

TEST_F(DailyReport, IsNothingForAnyOtherColour) {
    EXPECT_EQ(document(kGrey), QString());
    EXPECT_EQ(document(-1), QString());
}

TEST_F(DailyReport, HasAnEmptyParagraphWithoutNotes) {
    EXPECT_TRUE(withNotes({}).contains(QStringLiteral(R"(\b Notes: \b0{\par}{\par}\pard)")));
}

TEST_F(DailyReport, LeavesWhatANoteHoldsAsItStands) {
    const QString notes = QStringLiteral("C:\\par {open\r\nclosed} ž");
    EXPECT_TRUE(withNotes(notes).contains(QStringLiteral(R"(\b0{\par})") + notes +
                                          QStringLiteral(R"({\par}\pard)")));
}

TEST_F(DailyReport, WritesAPercentageApartFromTheState) {
    ReportDay day = kDay;
    day.values.emotional = 99.5;
    EXPECT_TRUE(dailyReport(kAnna, day, kBlackAndWhite)
                    .contains(QStringLiteral(R"(\i0\b Emotional: \b0\tab 100%{\par})")));
    EXPECT_EQ(emotionalLine(99.5), QStringLiteral(R"(\tab\b Emotional peak \b0)"));
}

TEST(ReportState, IsCriticalInTheBandOfItsCycleWithoutTheUpperEnd) {
    const QString emotional = QStringLiteral(R"(\tab\b Emotional critical day \b0)");
    const QString physical = QStringLiteral(R"(\tab\b Physical critical day \b0)");
    const QString intellectual = QStringLiteral(R"(\tab\b Intellectual critical day \b0)");
    for (const double percent : {-10.0, 0.0, 9.99})
        EXPECT_EQ(emotionalLine(percent), emotional) << percent;
    for (const double percent : {-10.0, 0.0, 12.0, 13.99})
        EXPECT_EQ(physicalLine(percent), physical) << percent;
    for (const double percent : {-1.0, -0.5, 0.0, 9.99})
        EXPECT_EQ(intellectualLine(percent), intellectual) << percent;
}

TEST(ReportState, IsNoneBetweenTheBandAndThePeakOrLow) {
    for (const double percent : {-99.0, -10.01, 10.0, 99.0})
        EXPECT_EQ(emotionalLine(percent), QStringLiteral(R"(\tab Emotional: None)")) << percent;
    for (const double percent : {-99.0, -10.01, 14.0, 99.0})
        EXPECT_EQ(physicalLine(percent), QStringLiteral(R"(\tab Physical: None)")) << percent;
    for (const double percent : {-99.0, -1.5, 10.0, 99.0})
        EXPECT_EQ(intellectualLine(percent), QStringLiteral(R"(\tab Intellectual: None)"))
            << percent;
}

TEST(ReportState, IsAPeakOrALowBeyondNinetyNine) {
    EXPECT_EQ(emotionalLine(99.01), QStringLiteral(R"(\tab\b Emotional peak \b0)"));
    EXPECT_EQ(physicalLine(99.01), QStringLiteral(R"(\tab\b Physical peak \b0)"));
    EXPECT_EQ(intellectualLine(99.01), QStringLiteral(R"(\tab\b Intellectual peak \b0)"));
    EXPECT_EQ(emotionalLine(-99.01), QStringLiteral(R"(\tab\b Emotional low \b0)"));
    EXPECT_EQ(physicalLine(-99.01), QStringLiteral(R"(\tab\b Physical low \b0)"));
    EXPECT_EQ(intellectualLine(-99.01), QStringLiteral(R"(\tab\b Intellectual low \b0)"));
}
