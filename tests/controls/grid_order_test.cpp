// The order of a grid's rows.
#include "controls/grid_order.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <algorithm>
#include <numeric>

#include "runtime/text_order.h"
#include "support/printing.h"
#include "support/properties.h"

namespace {

// The rows' numbers after a sort by all texts of each.
std::vector<int> sorted(const std::vector<QStringList>& rows,
                        decltype(&sortGenerically) sort = sortGenerically) {
    std::vector<int> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    const int texts = rows.empty() ? 0 : static_cast<int>(rows.front().size());
    sort(order, texts, [&](int row, int place) -> QStringView {
        return rows[static_cast<std::size_t>(row)][place];
    });
    return order;
}

QStringList sortedTexts(const QStringList& texts) {
    std::vector<QStringList> rows;
    for (const QString& text : texts)
        rows.push_back({text});
    QStringList result;
    for (const int row : sorted(rows))
        result += texts[row];
    return result;
}

QStringList list(std::initializer_list<const char*> texts) {
    QStringList result;
    for (const char* text : texts)
        result += QString::fromUtf8(text);
    return result;
}

}  // namespace

TEST(GenericOrder, TakesTwoNumbersAsNumbers) {
    EXPECT_EQ(sortedTexts(list({"10", "9", "100", "-1", "2.5", ".5", "+3"})),
              list({"-1", ".5", "2.5", "+3", "9", "10", "100"}));
    EXPECT_TRUE(compareGenerically(u"1.0", u"1") == 0);
    EXPECT_TRUE(compareGenerically(u"-0", u"0") == 0);
}

TEST(GenericOrder, TakesEverythingElseInTheOneOrderOfTexts) {
    EXPECT_EQ(sortedTexts(list({"Zed", "\u00c9mile", "abe", "Smithers", "Smith, Anna", "Smith"})),
              list({"abe", "\u00c9mile", "Smith", "Smith, Anna", "Smithers", "Zed"}));
}

TEST(GenericOrder, SortsDatesInWordsByTheirLetters) {
    EXPECT_EQ(sortedTexts(list({"Jan 1, 1900", "Apr 10, 1850", "Apr 1, 2000", "Apr 2, 1990"})),
              list({"Apr 1, 2000", "Apr 10, 1850", "Apr 2, 1990", "Jan 1, 1900"}));
}

TEST(GenericOrder, TellsLongTextsApartThatBeginAlike) {
    EXPECT_EQ(sortedTexts(list({"Wolfgang Amadeus Mozart", "Wolfgang Amadeus Bach"})),
              list({"Wolfgang Amadeus Bach", "Wolfgang Amadeus Mozart"}));
}

TEST(GenericOrder, TakesNoWordForANumber) {
    for (const QStringView word :
         {u"nan", u"inf", u"-inf", u"+inf", u"-", u".", u"1,000", u"0x10", u""})
        EXPECT_TRUE(compareGenerically(word, u"5") == compareTexts(word, u"0"))
            << qPrintable(word.toString());
    EXPECT_TRUE(compareGenerically(u"Inf", u"infant") < 0);
}

TEST(GenericOrder, PutsNumbersBeforeWordsAndBehindNothing) {
    EXPECT_EQ(sortedTexts(list({"Family", "12", "", "7", "!"})),
              list({"", "!", "7", "12", "Family"}));
}

TEST(GenericOrder, DoesNotRunInACircle) {
    EXPECT_EQ(sortedTexts(list({"10", "1a", "9"})), list({"9", "10", "1a"}));
    EXPECT_EQ(sortedTexts(list({"1a", "9", "10"})), list({"9", "10", "1a"}));
}

TEST(SortGenerically, LetsTheSecondTextDecideWhereTheFirstIsEqual) {
    EXPECT_EQ(sorted({list({"b", "1"}), list({"a", "10"}), list({"A", "9"}), list({"b", "0"})}),
              std::vector({2, 1, 3, 0}));
}

TEST(SortGenerically, KeepsTheOrderOfRowsThatAreEqual) {
    EXPECT_EQ(sorted({list({"b", "x"}), list({"a", "x"}), list({"A", "X"}), list({"B", "x"})}),
              std::vector({1, 2, 0, 3}));
    EXPECT_EQ(sorted({list({"1", "b"}), list({"1.0", "a"})}), std::vector({1, 0}));
}

TEST(SortGenerically, KeepsTheOrderOfManyRowsThatAreEqual) {
    std::vector<QStringList> rows(1000, QStringList(QStringLiteral("a")));
    for (std::size_t row = 0; row < rows.size(); row += 3)
        rows[row] = {QStringLiteral("b")};
    const std::vector<int> order = sorted(rows);
    const auto firstB = std::find(order.begin(), order.end(), 0);
    EXPECT_TRUE(std::is_sorted(order.begin(), firstB));
    EXPECT_TRUE(std::is_sorted(firstB, order.end()));
}

TEST(SortGenerically, LeavesNoRowsAndOneRowAlone) {
    EXPECT_EQ(sorted({}), std::vector<int>());
    EXPECT_EQ(sorted({list({"a"})}), std::vector({0}));
}

TEST(SortGenerically, SortsByNothingWhereThereIsNoText) {
    EXPECT_EQ(sorted({QStringList(), QStringList()}), std::vector({0, 1}));
}

#ifdef RC_GTEST_PROP

namespace {

// Short texts of few characters, so that numbers, words and what is between them come about.
rc::Gen<QString> anyText() {
    return rc::gen::map(
        rc::gen::container<std::string>(rc::gen::element('0', '1', '9', 'a', 'A', '-', '.', ' ')),
        [](const std::string& text) { return QString::fromStdString(text.substr(0, 4)); });
}

}  // namespace

RC_GTEST_PROP(GenericOrder, IsAnOrder, ()) {
    const QString a = *anyText();
    const QString b = *anyText();
    const QString c = *anyText();
    RC_ASSERT((compareGenerically(a, b) < 0) == (compareGenerically(b, a) > 0));
    if (compareGenerically(a, b) <= 0 && compareGenerically(b, c) <= 0)
        RC_ASSERT((compareGenerically(a, c) <= 0));
}

RC_GTEST_PROP(SortGenerically, SortsAsAStableSortByTheWholeRowsWould, ()) {
    const auto pairs = *rc::gen::container<std::vector<std::pair<QString, QString>>>(
        rc::gen::pair(anyText(), anyText()));
    std::vector<QStringList> rows(pairs.size());
    std::transform(pairs.begin(), pairs.end(), rows.begin(), [](const auto& pair) {
        return QStringList({pair.first, pair.second});
    });
    std::vector<int> expected(rows.size());
    std::iota(expected.begin(), expected.end(), 0);
    std::stable_sort(expected.begin(), expected.end(), [&](int a, int b) {
        const auto& left = pairs[static_cast<std::size_t>(a)];
        const auto& right = pairs[static_cast<std::size_t>(b)];
        const auto order = compareGenerically(left.first, right.first);
        return (order == 0 ? compareGenerically(left.second, right.second) : order) < 0;
    });
    RC_ASSERT(sorted(rows) == expected);
}

#endif

TEST(SortNumerically, PutsTheLargestNumberFirst) {
    EXPECT_EQ(sorted({list({"9"}), list({"100"}), list({"-1"}), list({"99"}), list({"10"})},
                     sortNumerically),
              std::vector({1, 3, 4, 0, 2}));
}

TEST(SortNumerically, ReadsTheNumberAtTheBeginningOfATextAndTakesNoneForZero) {
    EXPECT_EQ(sorted({list({"-1%"}), list({""}), list({"1 of 2"}), list({"word"}), list({"-0.5"})},
                     sortNumerically),
              std::vector({2, 1, 3, 4, 0}));
}

TEST(SortNumerically, KeepsTheOrderOfRowsThatAreEqual) {
    EXPECT_EQ(sorted({list({"7", "a"}), list({"7.0", "b"}), list({"8", "c"})},
                     [](auto rows, int, const auto& textOf) { sortNumerically(rows, 1, textOf); }),
              std::vector({2, 0, 1}));
}

TEST(SortNumerically, LetsTheSecondTextDecideWhereTheFirstIsEqual) {
    EXPECT_EQ(sorted({list({"7", "1"}), list({"7", "2"})}, sortNumerically), std::vector({1, 0}));
}
