// Dates by the patterns that Ondara uses.
#include "runtime/format.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/errors.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

const Date kFirstOfMarch = DateSerial(2000, 3, 1);

std::string english(const char* pattern, Date date = kFirstOfMarch) {
    return formatDate(date, QString::fromLatin1(pattern),
                      QLocale(QLocale::English, QLocale::UnitedKingdom))
        .toStdString();
}

std::string german(const char* pattern) {
    return formatDate(kFirstOfMarch, QString::fromLatin1(pattern),
                      QLocale(QLocale::German, QLocale::Germany))
        .toStdString();
}

}  // namespace

TEST(Format, KnowsEveryPatternInUse) {
    EXPECT_EQ(english("d MMMM yyyy"), "1 March 2000");
    EXPECT_EQ(english("d MMM yyyy"), "1 Mar 2000");
    EXPECT_EQ(english("dddd, d MMMM yyyy"), "Wednesday, 1 March 2000");
    EXPECT_EQ(english("ddd, d mmmm yyyy"), "Wed, 1 March 2000");
    EXPECT_EQ(english("d mmmm yyyy"), "1 March 2000");
    EXPECT_EQ(english("ddd, d mmm"), "Wed, 1 Mar");
    EXPECT_EQ(english("ddd, d mmmm"), "Wed, 1 March");
    EXPECT_EQ(english("MMMM yyyy"), "March 2000");
    EXPECT_EQ(english("d mmm yyyy"), "1 Mar 2000");
    EXPECT_EQ(english("MMM d, yyyy"), "Mar 1, 2000");
}

TEST(Format, TakesMForTheMonthAlwaysWhateverTheTime) {
    const Date withTime = kFirstOfMarch + 0.75;
    EXPECT_EQ(english("d/m/yyyy", withTime), "1/3/2000");
    EXPECT_EQ(english("d/M/yyyy", withTime), "1/3/2000");
}

TEST(Format, TakesSmallAndCapitalLettersAlike) {
    EXPECT_EQ(english("DDDD, D mMmM YYYY"), "Wednesday, 1 March 2000");
}

TEST(Format, WritesDayAndMonthWithoutAndTheYearWithLeadingNoughts) {
    EXPECT_EQ(english("d/m/yyyy", DateSerial(345, 6, 7)), "7/6/0345");
    EXPECT_EQ(english("d/m/yyyy", DateSerial(9999, 12, 31)), "31/12/9999");
}

TEST(Format, LeavesEverythingElseAsItStands) {
    EXPECT_EQ(english(""), "");
    EXPECT_EQ(english(" , (d) ,, %1"), " , (1) ,, %1");
}

TEST(Format, NamesEveryDayOfTheWeek) {
    const char* const kNames[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    Date date = DateSerial(2000, 3, 13);
    for (const char* const name : kNames) {
        EXPECT_EQ(english("ddd", date), name);
        EXPECT_EQ(english("dddd", date).substr(0, 3), name);
        date = date + 1;
    }
}

TEST(Format, NamesEveryMonth) {
    const char* const kNames[] = {"January",   "February", "March",    "April",
                                  "May",       "June",     "July",     "August",
                                  "September", "October",  "November", "December"};
    Long month = 0;
    for (const char* const name : kNames)
        EXPECT_EQ(english("mmmm", DateSerial(2000, ++month, 1)), name);
}

TEST(Format, TakesTheNamesOfTheLocaleAndThePatternAsItStands) {
    EXPECT_EQ(german("dddd, d MMMM yyyy"), "Mittwoch, 1 März 2000");
    EXPECT_EQ(german("MMM d, yyyy"), "März 1, 2000");
}

TEST(Format, AsksTheHostForTheLocale) {
    RecordingHost host;
    EXPECT_EQ(Format(kFirstOfMarch, QStringLiteral("dddd, d MMMM yyyy")),
              QStringLiteral("Wednesday, 1 March 2000"));
}

TEST(ReadDate, ReadsWhatFormatHasWrittenInEveryLanguage) {
    for (const QLocale& names : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript,
                                                         QLocale::AnyTerritory)) {
        for (Long month = 1; month <= 12; ++month) {
            const Date date = DateSerial(1972, month, 2 * month);
            EXPECT_EQ(readDate(formatDate(date, kDateAsText, names), names), date)
                << names.name().toStdString();
        }
    }
}

TEST(ReadDate, ReadsTheFirstDayAndTheLast) {
    const QLocale names = RecordingHost().locale();
    EXPECT_EQ(readDate(QStringLiteral("1 Jan 0100"), names), Date(Date::kEarliestDay));
    EXPECT_EQ(readDate(QStringLiteral("31 Dec 9999"), names), Date(Date::kLatestDay));
    EXPECT_EQ(readDate(QStringLiteral("29 Feb 2000"), names), DateSerial(2000, 2, 29));
}

TEST(ReadDate, RefusesEveryOtherText) {
    const RecordingHost host;
    for (const char* text :
         {"", " ", "1", "1 Mar", "Mar 2000", "1  2000", "1 März 2000", "1 Mar 2000 ", "x Mar 2000",
          "1 Mar x", "0 Mar 2000", "30 Feb 2000", "29 Feb 2001", "-1 Mar 2000", "1 Mar 0099",
          "1 Mar 10000", "1 Mar -2000", "1 Mar 99999999999", "1 mar 2000x"})
        EXPECT_EQ(errorOf([&] { readDate(QString::fromUtf8(text)); }), 13) << text;
}

TEST(ReadDate, AsksTheHostForTheLocale) {
    const RecordingHost host;
    EXPECT_EQ(readDate(QStringLiteral("1 Mar 2000")), kFirstOfMarch);
}
