// The entries of a list, without any list on a screen.
#include "controls/list_entries.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "runtime/text_order.h"
#include "support/errors.h"
#include "support/properties.h"

namespace {

QStringList textsOf(const ListEntries& entries) {
    QStringList texts;
    for (int i = 0; i < entries.count(); ++i)
        texts += entries.text(i);
    return texts;
}

ListEntries sortedEntries(std::vector<ListEntry> entries) {
    ListEntries sorted;
    sorted.setSorted(true);
    sorted.fill(std::move(entries));
    return sorted;
}

int add(ListEntries& entries, const QString& text) {
    const int place = entries.placeOf(text);
    entries.insert(place, text);
    return place;
}

}  // namespace

TEST(ListEntries, StandInTheOrderOfTheirTextWhateverTheOrderOfFilling) {
    const ListEntries entries = sortedEntries({{QStringLiteral("Smith, Anna")},
                                               {QStringLiteral("Smithers")},
                                               {QStringLiteral("Smith")},
                                               {QStringLiteral("smith, Ab")}});
    EXPECT_EQ(textsOf(entries),
              QStringList({QStringLiteral("Smith"), QStringLiteral("smith, Ab"),
                           QStringLiteral("Smith, Anna"), QStringLiteral("Smithers")}));
}

TEST(ListEntries, KeepTheGivenOrderUnlessTheListIsSorted) {
    ListEntries entries;
    entries.fill({{QStringLiteral("b"), 2}, {QStringLiteral("a"), 1}});
    add(entries, QStringLiteral("aa"));
    EXPECT_EQ(textsOf(entries),
              QStringList({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("aa")}));
    EXPECT_EQ(entries.newIndex(), 2);
}

TEST(ListEntries, AreAddedTogetherAsIfOneCameAfterTheOther) {
    const std::vector<ListEntry> added{{QStringLiteral("Zed"), 3},
                                       {QStringLiteral("abe"), 4},
                                       {QStringLiteral("Mia"), 5},
                                       {QStringLiteral("abe"), 6}};
    for (const bool isSorted : {true, false}) {
        ListEntries oneByOne;
        ListEntries together;
        for (ListEntries* entries : {&oneByOne, &together}) {
            entries->setSorted(isSorted);
            entries->fill({{QStringLiteral("abe"), 1}, {QStringLiteral("Mia"), 2}});
        }
        for (const ListEntry& entry : added)
            oneByOne.setItemData(add(oneByOne, entry.text), entry.itemData);
        EXPECT_EQ(together.add(added, 1), isSorted ? 3 : 1);
        EXPECT_EQ(textsOf(together), textsOf(oneByOne));
        for (int i = 0; i < together.count(); ++i)
            EXPECT_EQ(together.itemData(i), oneByOne.itemData(i));
        EXPECT_EQ(together.newIndex(), -1);
        EXPECT_EQ(together.add({{QStringLiteral("a")}}, -1), -1);
    }
}

TEST(ListEntries, StaySelectedWhereverTheyStand) {
    ListEntries entries = sortedEntries({{QStringLiteral("b")}, {QStringLiteral("d")}});
    EXPECT_FALSE(entries.isSelected(0));
    entries.setSelected(0, true);
    add(entries, QStringLiteral("a"));
    EXPECT_TRUE(entries.isSelected(1));
    entries.add({{QStringLiteral("A")}, {QStringLiteral("c")}}, -1);
    std::vector<bool> selected;
    for (int i = 0; i < entries.count(); ++i)
        selected.push_back(entries.isSelected(i));
    EXPECT_EQ(selected, std::vector({false, false, true, false, false}));
    entries.setSelected(2, false);
    EXPECT_FALSE(entries.isSelected(2));
}

TEST(ListEntries, KeepTheirItemDataThroughTheSort) {
    const ListEntries entries =
        sortedEntries({{QStringLiteral("Zed"), 26}, {QStringLiteral("abe"), 1}});
    EXPECT_EQ(entries.itemData(0), 1);
    EXPECT_EQ(entries.itemData(1), 26);
}

TEST(ListEntries, ThatLeadStandFirstWhateverTheirText) {
    ListEntries entries = sortedEntries(
        {{QStringLiteral("b"), 7}, {QStringLiteral("z"), 0, true}, {QStringLiteral("a"), 8}});
    EXPECT_EQ(entries.itemData(0), 0);
    EXPECT_EQ(add(entries, QStringLiteral("A")), 2);
    EXPECT_EQ(add(entries, QStringLiteral("*")), 1);
    EXPECT_EQ(textsOf(entries),
              QStringList({QStringLiteral("z"), QStringLiteral("*"), QStringLiteral("a"),
                           QStringLiteral("A"), QStringLiteral("b")}));
}

TEST(ListEntries, OfEqualTextStandInTheOrderInWhichTheyCame) {
    ListEntries entries = sortedEntries({{QStringLiteral("ADA"), 1},
                                         {QStringLiteral("Zed"), 2},
                                         {QStringLiteral("ada"), 3},
                                         {QStringLiteral("Ada"), 4}});
    EXPECT_EQ(add(entries, QStringLiteral("aDA")), 3);
    EXPECT_EQ(textsOf(entries),
              QStringList({QStringLiteral("ADA"), QStringLiteral("ada"), QStringLiteral("Ada"),
                           QStringLiteral("aDA"), QStringLiteral("Zed")}));
}

TEST(ListEntries, TellTheNewIndexUntilTheListChangesInAnotherWay) {
    ListEntries entries = sortedEntries({{QStringLiteral("a")}, {QStringLiteral("c")}});
    EXPECT_EQ(entries.newIndex(), -1);
    add(entries, QStringLiteral("b"));
    EXPECT_EQ(entries.newIndex(), 1);
    entries.setItemData(1, 5);
    EXPECT_EQ(entries.newIndex(), 1);
    entries.remove(0);
    EXPECT_EQ(entries.newIndex(), -1);
    add(entries, QStringLiteral("d"));
    entries.fill({});
    EXPECT_EQ(entries.newIndex(), -1);
}

TEST(ListEntries, AreFoundByExactlyTheirTextAndTheFirstOfEqualOnes) {
    const ListEntries entries = sortedEntries({{QStringLiteral("Curie, Marie"), 1},
                                               {QStringLiteral("curie, marie"), 2},
                                               {QStringLiteral("Curie, Marie"), 3}});
    EXPECT_EQ(entries.find(QStringLiteral("Curie, Marie")), 0);
    EXPECT_EQ(entries.find(QStringLiteral("curie, marie")), 1);
    EXPECT_EQ(entries.find(QStringLiteral("Curie")), -1);
    EXPECT_EQ(entries.find(QStringLiteral("Curie, Marie ")), -1);
}

TEST(ListEntries, RaiseAnErrorForAnIndexThatHasNoEntry) {
    ListEntries entries = sortedEntries({{QStringLiteral("one")}});
    for (const int index : {-1, 1, 1000}) {
        EXPECT_EQ(errorOf([&] { (void)entries.itemData(index); }), 381) << index;
        EXPECT_EQ(errorOf([&] { (void)entries.text(index); }), 381) << index;
        EXPECT_EQ(errorOf([&] { entries.setItemData(index, 1); }), 381) << index;
        EXPECT_EQ(errorOf([&] { (void)entries.isSelected(index); }), 381) << index;
        EXPECT_EQ(errorOf([&] { entries.setSelected(index, true); }), 381) << index;
    }
    EXPECT_EQ(errorOf([&] { (void)entries.itemData(0); }), 0);
}

TEST(ListEntries, ThatAreThereGetIntoOrderWhenTheListBecomesSorted) {
    ListEntries entries;
    entries.fill({{QStringLiteral("b"), 2}, {QStringLiteral("a"), 1}});
    entries.setSorted(true);
    EXPECT_EQ(textsOf(entries), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
}

TEST(ListEntries, OfLongTextsThatBeginAlikeStandInTheOrderOfTheirEnds) {
    const QString beginning = QStringLiteral("Featherstonehaugh, ");
    const ListEntries entries = sortedEntries({{beginning + QStringLiteral("Zo\u00eb")},
                                               {beginning + QStringLiteral("Zoe")},
                                               {beginning + QStringLiteral("\u00c9mile")},
                                               {beginning.chopped(1)},
                                               {beginning.toUpper() + QStringLiteral("ANNA")}});
    EXPECT_EQ(
        textsOf(entries),
        QStringList({beginning.chopped(1), beginning.toUpper() + QStringLiteral("ANNA"),
                     beginning + QStringLiteral("\u00c9mile"), beginning + QStringLiteral("Zoe"),
                     beginning + QStringLiteral("Zo\u00eb")}));
}

#ifdef RC_GTEST_PROP

RC_GTEST_PROP(ListEntries, AddedOneByOneStandAsThoseFilledAtOnce, ()) {
    const auto letters = *rc::gen::container<std::vector<std::string>>(
        rc::gen::container<std::string>(rc::gen::element('a', 'A', 'b', ',', ' ', '*', '\0', '~')));
    ListEntries added;
    added.setSorted(true);
    std::vector<ListEntry> all;
    for (const std::string& text : letters) {
        add(added, QString::fromStdString(text));
        all.push_back({QString::fromStdString(text)});
    }
    RC_ASSERT(textsOf(added) == textsOf(sortedEntries(all)));
    for (int i = 1; i < added.count(); ++i)
        RC_ASSERT(std::is_lteq(compareTexts(added.text(i - 1), added.text(i))));
}

#endif
