// The document of the monthly chart report.
#include "reports/monthly_report.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "reports/report_pieces.h"
#include "reports/reported_person.h"
#include "support/errors.h"
#include "support/printing.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

class MonthlyReport : public testing::Test {
  protected:
    QString heading(Date start) {
        const QString document = monthlyReport(kAnna, start, kBlackAndWhite);
        const qsizetype from = document.indexOf(u"From ");
        return document.mid(from, document.indexOf(u'\\', from) - from);
    }

    RecordingHost host_;
};

}  // namespace

TEST_F(MonthlyReport, IsPutTogetherInColoursWithNothingBetweenThePieces) {
    EXPECT_EQ(
        monthlyReport(kAnna, DateSerial(2000, 3, 4), kInColour),
        QStringLiteral(
            R"({\rtf1\ansi\ansicpg1252\deff0\deflang2057{\fonttbl{\f0\fswiss\fprq2\fcharset0 Arial;})"
            R"({\f1\fnil\fcharset0 Times New Roman;}})"
            R"({\colortbl ;\red0\green0\blue255;\red255\green0\blue0;\red0\green128\blue0;)"
            R"(\red128\green0\blue128;})"
            R"(\viewkind4\uc1\pard\qc\b\f0\fs28 Monthly Chart for Anna Smith{\par}{\par})"
            R"(\b\i\fs20 From 04/03/2000 to 04/04/2000\b0\i0{\par}{\par})"
            R"(\pard\b Date of birth: \b0\tab Monday, 2 October 1972{\par})"
            R"(\b Star sign: \b0\tab Libra{\par})"
            R"(\b Gender: \b0\tab Female{\par})"
            R"(\b Category: \b0\tab Family{\par})"
            R"(\b Notes: \b0{\par}Likes tea.{\par}{\par})"
            R"(\cf1 Emotional, \cf2 Physical, \cf3 Intellectual, \cf0 Average{\par}\qc})"));
}

TEST_F(MonthlyReport, NamesTheLinesByTheirStylesInBlackAndWhite) {
    const Date start = DateSerial(2000, 3, 4);
    QString expected = monthlyReport(kAnna, start, kInColour);
    expected.remove(kColourTable);
    expected.replace(
        QStringLiteral(R"(\cf1 Emotional, \cf2 Physical, \cf3 Intellectual, \cf0 Average)"),
        QStringLiteral("Emotional (Dashed), Physical (Ditted), Intellectual (Dotted), "
                       "Average (Solid)"));
    EXPECT_EQ(monthlyReport(kAnna, start, kBlackAndWhite), expected);
    EXPECT_FALSE(expected.contains(u"\\c"));
}

TEST_F(MonthlyReport, IsNothingForAnyOtherColour) {
    EXPECT_EQ(monthlyReport(kAnna, DateSerial(2000, 3, 4), 2), QString());
}

TEST_F(MonthlyReport, IsHeadedToTheDayAfterTheLastOfTheChart) {
    EXPECT_EQ(heading(DateSerial(2001, 1, 31)), u"From 31/01/2001 to 03/03/2001");
    EXPECT_EQ(heading(DateSerial(1999, 12, 31)), u"From 31/12/1999 to 31/01/2000");
}

TEST_F(MonthlyReport, HasNoHeadingBeyondTheCalendar) {
    EXPECT_THROW(heading(DateSerial(9999, 12, 1)), std::out_of_range);
}
