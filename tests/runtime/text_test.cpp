// The classical text functions.
#include "runtime/text.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/errors.h"

TEST(Trim, RemovesBlanksFromBothEnds) {
    EXPECT_EQ(Trim(QStringLiteral("  Anna  Maria ")), QStringLiteral("Anna  Maria"));
    EXPECT_EQ(Trim(QStringLiteral("Anna")), QStringLiteral("Anna"));
}

TEST(Trim, LeavesNothingOfBlanks) {
    EXPECT_EQ(Trim(QStringLiteral("   ")), QString());
    EXPECT_EQ(Trim(QString()), QString());
}

TEST(Trim, KnowsTheBlankAlone) {
    for (const QChar character : {u'\t', u'\n', u'\r', u'\u00A0', u'\u2003', u'\0'}) {
        const QString text = character + QStringLiteral("Anna") + character;
        EXPECT_EQ(Trim(text), text) << text.toStdString();
    }
}

TEST(Left, TakesTheFirstCharacters) {
    EXPECT_EQ(Left(QStringLiteral("Smith"), 2), QStringLiteral("Sm"));
    EXPECT_EQ(Left(QStringLiteral("Smith"), 0), QString());
    EXPECT_EQ(Left(QStringLiteral("Smith"), 5), QStringLiteral("Smith"));
    EXPECT_EQ(Left(QStringLiteral("Smith"), 6), QStringLiteral("Smith"));
}

TEST(Left, RaisesForANegativeLength) {
    EXPECT_EQ(errorOf([] { Left(QStringLiteral("Smith"), -1); }), 5);
}

TEST(Mid, CountsFromOne) {
    EXPECT_EQ(Mid(QStringLiteral("Smith"), 1), QStringLiteral("Smith"));
    EXPECT_EQ(Mid(QStringLiteral("Smith"), 5), QStringLiteral("h"));
    EXPECT_EQ(Mid(QStringLiteral("Smith"), 6), QString());
    EXPECT_EQ(Mid(QStringLiteral("Smith"), 7), QString());
}

TEST(Mid, RaisesForAPositionBelowOne) {
    EXPECT_EQ(errorOf([] { Mid(QStringLiteral("Smith"), 0); }), 5);
    EXPECT_EQ(errorOf([] { Mid(QStringLiteral("Smith"), -1); }), 5);
}

TEST(InStr, CountsFromOneAndGivesZeroForNothingFound) {
    EXPECT_EQ(InStr(QStringLiteral("Smith, Anna"), QStringLiteral(",")), 6);
    EXPECT_EQ(InStr(QStringLiteral("Smith"), QStringLiteral("S")), 1);
    EXPECT_EQ(InStr(QStringLiteral("Smith"), QStringLiteral(",")), 0);
}

TEST(InStr, LooksLetterForLetter) {
    EXPECT_EQ(InStr(QStringLiteral("Smith"), QStringLiteral("s")), 0);
    EXPECT_EQ(InStr(QStringLiteral("Anna\u00A0Maria"), QStringLiteral(" ")), 0);
}

TEST(InStr, FindsAnEmptyTextAtOneAndNothingInAnEmptyText) {
    EXPECT_EQ(InStr(QStringLiteral("Smith"), QString()), 1);
    EXPECT_EQ(InStr(QString(), QStringLiteral("S")), 0);
    EXPECT_EQ(InStr(QString(), QString()), 0);
}

TEST(LCase, LowersLettersOfEveryAlphabet) {
    EXPECT_EQ(LCase(QStringLiteral("ÉMILE Smith 12")), QStringLiteral("émile smith 12"));
}

TEST(Val, ReadsTheNumberAtTheStart) {
    const std::pair<const char*, double> kRows[] = {
        {"62%", 62},
        {"-98%", -98},
        {"+7", 7},
        {"1.5", 1.5},
        {".5", 0.5},
        {"-.5x", -0.5},
        {"5.", 5},
        {"1.2.3", 1.2},
        {"1,234", 1},
        {"12 34", 1234},
        {" \t\r\n42", 42},
        {"1e3", 1000},
        {"1d3", 1000},
        {"1D-3", 0.001},
        {"2E+2", 200},
        {"1e", 1},
        {"1e+", 1},
        {"1ex", 1},
        {"-0", 0},
        {"007", 7},
        {"123456789", 123456789},
        {"9999999999", 9999999999.0},
    };
    for (const auto& [text, value] : kRows)
        EXPECT_EQ(Val(QString::fromLatin1(text)), value) << text;
}

TEST(Val, IsZeroWithoutANumber) {
    for (const char* const text : {"", " ", "abc", "-", "+-1", ".", "%5", "e5", "$5", "x1"})
        EXPECT_EQ(Val(QString::fromLatin1(text)), 0) << text;
}

TEST(Val, KnowsTheTenDigitsAlone) {
    EXPECT_EQ(Val(QStringLiteral("\u0663")), 0);
    EXPECT_EQ(Val(QStringLiteral("4\u0663")), 4);
}

TEST(Val, RaisesAnOverflowBeyondADouble) {
    EXPECT_EQ(errorOf([] { Val(QStringLiteral("1e400")); }), 6);
    EXPECT_EQ(errorOf([] { Val(QStringLiteral("-1e400")); }), 6);
}

TEST(Val, TakesANumberTooSmallForADoubleForZero) {
    EXPECT_EQ(Val(QStringLiteral("1e-400")), 0);
}
