// Numbers rounded and as text.
#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <cmath>
#include <limits>

#include "support/errors.h"
#include "support/properties.h"

namespace {

// Makes numbers German for as long as it lives: 10.007 for ten thousand and seven.
class GermanDefault {
  public:
    GermanDefault() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    ~GermanDefault() { QLocale::setDefault(before_); }
    Q_DISABLE_COPY_MOVE(GermanDefault)

  private:
    QLocale before_;
};

}  // namespace

TEST(Round, TakesTheEvenNeighbourOfAHalf) {
    EXPECT_EQ(Round(2.5), 2);
    EXPECT_EQ(Round(3.5), 4);
    EXPECT_EQ(Round(0.5), 0);
    EXPECT_EQ(Round(-0.5), 0);
    EXPECT_EQ(Round(1.5), 2);
    EXPECT_EQ(Round(-1.5), -2);
    EXPECT_EQ(Round(-2.5), -2);
    EXPECT_EQ(Round(99.5), 100);
}

TEST(Round, TakesTheNearerNeighbourNextToAHalf) {
    EXPECT_EQ(Round(std::nextafter(2.5, 3)), 3);
    EXPECT_EQ(Round(std::nextafter(3.5, 3)), 3);
    EXPECT_EQ(Round(std::nextafter(-0.5, -1)), -1);
}

TEST(RoundToInteger, RoundsAsRoundDoesWithin16Bits) {
    EXPECT_EQ(RoundToInteger(2.5), 2);
    EXPECT_EQ(RoundToInteger(-3.5), -4);
    EXPECT_EQ(RoundToInteger(32767.4), 32767);
    EXPECT_EQ(RoundToInteger(-32768.5), -32768);
}

TEST(RoundToInteger, RaisesAnOverflowOutsideOf16Bits) {
    for (const double beyond : {32767.5, -32769.0, 1e9, 1e30})
        EXPECT_EQ(errorOf([beyond] { RoundToInteger(beyond); }), 6) << beyond;
}

TEST(Round, RaisesAnOverflowOutsideOf32Bits) {
    EXPECT_EQ(Round(2147483647.0), 2147483647);
    EXPECT_EQ(Round(-2147483648.0), std::numeric_limits<Long>::min());
    EXPECT_EQ(Round(2147483647.4), 2147483647);
    EXPECT_EQ(errorOf([] { Round(2147483647.5); }), 6);
    EXPECT_EQ(errorOf([] { Round(-2147483649.0); }), 6);
    EXPECT_EQ(errorOf([] { Round(std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorOf([] { Round(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

#ifdef RC_GTEST_PROP

RC_GTEST_PROP(Round, IsNeverMoreThanAHalfAway, (Long thousandths)) {
    const double value = thousandths / 1000.0;
    RC_ASSERT(std::abs(Round(value) - value) <= 0.5);
}

#endif

TEST(NumberText, HasNoSeparatorsWhateverTheLocale) {
    const GermanDefault german;
    ASSERT_EQ(QLocale().toString(10007), QStringLiteral("10.007"));
    EXPECT_EQ(numberText(10007), QStringLiteral("10007"));
    EXPECT_EQ(numberText(-1234567), QStringLiteral("-1234567"));
    EXPECT_EQ(percentText(10007.2), QStringLiteral("10007%"));
}

TEST(PercentText, RoundsHalfToEven) {
    EXPECT_EQ(percentText(62.34898018587336), QStringLiteral("62%"));
    EXPECT_EQ(percentText(99.88673391830079), QStringLiteral("100%"));
    EXPECT_EQ(percentText(2.5), QStringLiteral("2%"));
    EXPECT_EQ(percentText(-97.9084087682323), QStringLiteral("-98%"));
}

TEST(PercentText, NeverShowsANoughtBelowZero) {
    for (const double percent : {-0.5, -0.2667120284627676, -2.4493e-14, -0.0, 0.0, 1.2246e-14})
        EXPECT_EQ(percentText(percent), QStringLiteral("0%")) << percent;
}

TEST(RoundToInteger, RoundsHalvesOfPercentagesToTheEvenNumber) {
    EXPECT_EQ(RoundToInteger(89.5), 90);
    EXPECT_EQ(RoundToInteger(90.5), 90);
    EXPECT_EQ(RoundToInteger(49.5), 50);
    EXPECT_EQ(RoundToInteger(50.5), 50);
}

TEST(WholeNumber, IsReadFromItsDigits) {
    EXPECT_EQ(wholeNumber(QStringLiteral("0")), 0);
    EXPECT_EQ(wholeNumber(QStringLiteral("4711")), 4711);
    EXPECT_EQ(wholeNumber(QStringLiteral("-2147483648")), std::numeric_limits<Long>::min());
}

TEST(WholeNumber, IsNothingElse) {
    for (const char* text : {"", "?", "Family", "1.5", "1,000", "1x", "2147483648"})
        EXPECT_EQ(errorOf([&] { wholeNumber(QString::fromLatin1(text)); }), 13) << text;
}
