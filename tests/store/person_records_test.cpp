// The delimited records, character by character.
#include "store/person_records.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/errors.h"
#include "support/printing.h"
#include "support/properties.h"

namespace {

using Records = std::vector<PersonRecord>;

Records allOf(const QString& lines) {
    Records records;
    readRecords(lines, [&](const PersonRecord& record) { records.push_back(record); });
    return records;
}

TEST(PersonRecords, AreLinesOfANumberAndAQuotedText) {
    EXPECT_EQ(writtenRecords({{42, QStringLiteral("Smith, Anna")}}),
              QStringLiteral("42,\"Smith, Anna\"\r\n"));
    EXPECT_EQ(writtenRecords({{-7, QStringLiteral("Zed")}, {2147483647, QString()}}),
              QStringLiteral("-7,\"Zed\"\r\n2147483647,\"\"\r\n"));
}

TEST(PersonRecords, AreReadInTheirOrderToTheEndOfTheFileAndNoFurther) {
    const Records people{{3, QStringLiteral("Adler, Ben")},
                         {1, QStringLiteral("Smith, Anna")},
                         {2, QStringLiteral("Zed")}};
    EXPECT_EQ(allOf(writtenRecords(people)), people);
    EXPECT_EQ(allOf({}), Records());
}

TEST(PersonRecords, HoldCommasInsideTheQuotes) {
    EXPECT_EQ(readFirstRecord(QStringLiteral("5,\"Smith, Jr., Anna\"\r\n")),
              (PersonRecord{5, QStringLiteral("Smith, Jr., Anna")}));
}

TEST(PersonRecords, ReadATextAsFarAsItsFirstQuoteAndGoOnBehindTheLine) {
    const QString lines =
        writtenRecords({{5, QStringLiteral("The \"Duke\", Ben")}, {6, QStringLiteral("Zed")}});
    EXPECT_EQ(lines, QStringLiteral("5,\"The \"Duke\", Ben\"\r\n6,\"Zed\"\r\n"));
    EXPECT_EQ(allOf(lines), (Records{{5, QStringLiteral("The ")}, {6, QStringLiteral("Zed")}}));
}

TEST(PersonRecords, NeedNoEndOfTheirLastLine) {
    EXPECT_EQ(allOf(QStringLiteral("5,\"Zed\"")), (Records{{5, QStringLiteral("Zed")}}));
}

TEST(PersonRecords, OfAFileOfOneAreReadWithoutTheRest) {
    EXPECT_EQ(readFirstRecord(QStringLiteral("5,\"Zed\"\r\nand then nonsense")),
              (PersonRecord{5, QStringLiteral("Zed")}));
}

TEST(PersonRecords, ThatBreakOffAreReadPastTheEnd) {
    for (const char* lines : {"", "5", "5,", "5,\"Zed", "5,Zed\r\n", "\r\n"})
        EXPECT_EQ(errorOf([&] { readFirstRecord(QString::fromLatin1(lines)); }), 62) << lines;
    EXPECT_EQ(errorOf([] { allOf(QStringLiteral("5,\"Zed\"\r\n6,\"An")); }), 62);
}

TEST(PersonRecords, BeforeOneThatBreaksOffAreGivenAway) {
    Records records;
    const auto take = [&](const PersonRecord& record) { records.push_back(record); };
    EXPECT_EQ(errorOf([&] { readRecords(QStringLiteral("5,\"Zed\"\r\n6,\"An"), take); }), 62);
    EXPECT_EQ(records, (Records{{5, QStringLiteral("Zed")}}));
}

TEST(PersonRecords, BeginWithANumberOfThirtyTwoBits) {
    for (const char* lines : {"five,\"Zed\"\r\n", ",\"Zed\"\r\n", "2147483648,\"Zed\"\r\n",
                              "1.5,\"Zed\"\r\n", "5,6,\"Zed\"\r\n"})
        EXPECT_EQ(errorOf([&] { readFirstRecord(QString::fromLatin1(lines)); }), 13) << lines;
}

#ifdef RC_GTEST_PROP

RC_GTEST_PROP(PersonRecordsProperties, ReadBackWhateverTheyWroteOfTextsWithoutQuotes,
              (const std::vector<std::pair<Long, std::string>>& people)) {
    Records records;
    for (const auto& [nameId, text] : people)
        records.push_back({nameId, QString::fromLatin1(text.c_str()).remove(u'"')});
    RC_ASSERT(allOf(writtenRecords(records)) == records);
}

// Any bytes are read to their end or raise one of the two errors, and nothing else happens.
RC_GTEST_PROP(PersonRecordsProperties, TakeAnyText, (const std::string& text)) {
    const int error = errorOf([&] { allOf(QString::fromLatin1(text.c_str())); });
    RC_ASSERT(error == 0 || error == 13 || error == 62);
}

#endif

}  // namespace
