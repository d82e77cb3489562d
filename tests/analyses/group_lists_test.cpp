// Who can be picked for a group, and which groups are saved.
#include "analyses/group_lists.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

QStringList textsOf(const std::vector<ListEntry>& entries) {
    QStringList texts;
    for (const ListEntry& entry : entries)
        texts += entry.text;
    return texts;
}

const ListEntry kAnna{QStringLiteral("Smith, Anna"), 1};
const ListEntry kBen{QStringLiteral("Adler, Ben"), 2};
const ListEntry kNamesake{QStringLiteral("Smith, Anna"), 3};

}  // namespace

TEST(OutsideGroup, AreThePeopleWhoseNumberNobodyInItHas) {
    EXPECT_EQ(textsOf(outsideGroup({kAnna, kBen}, {kAnna})), QStringList(kBen.text));
    EXPECT_EQ(textsOf(outsideGroup({kAnna, kBen}, {{QStringLiteral("Once, Anna"), 1}})),
              QStringList(kBen.text));
    EXPECT_EQ(textsOf(outsideGroup({kNamesake}, {kAnna})), QStringList(kNamesake.text));
}

TEST(OutsideGroup, StandInTheOrderInWhichTheyCame) {
    EXPECT_EQ(textsOf(outsideGroup({kAnna, kBen, kNamesake}, {{QString(), 9}})),
              QStringList({kAnna.text, kBen.text, kNamesake.text}));
}

TEST(OutsideGroup, IsEverybodyForAnEmptyOneAndNobodyForAnEmptyList) {
    EXPECT_EQ(textsOf(outsideGroup({kAnna, kBen}, {})), QStringList({kAnna.text, kBen.text}));
    EXPECT_EQ(textsOf(outsideGroup({}, {kAnna})), QStringList());
}

TEST(IsGroupListed, GoesByTheWholeNameOfTheFileWithoutRegardToCase) {
    const std::vector<ListEntry> files{{QStringLiteral("Family.ofg")},
                                       {QStringLiteral("WORK.OFG")}};
    for (const char* name : {"Family", "fAMILY", "work"})
        EXPECT_TRUE(isGroupListed(QString::fromLatin1(name), files)) << name;
    for (const char* name : {"Fam", "Family.ofg", "Families", ""})
        EXPECT_FALSE(isGroupListed(QString::fromLatin1(name), files)) << name;
    EXPECT_FALSE(isGroupListed(QStringLiteral("Family"), {}));
    EXPECT_TRUE(isGroupListed(QStringLiteral("ΦΊΛΟΣ"), {{QStringLiteral("φίλος.ofg")}}));
}

TEST(IsGroupListed, LeavesBlanksAtTheEndsOfTheNameAside) {
    EXPECT_TRUE(isGroupListed(QStringLiteral("  family "), {{QStringLiteral("Family.ofg")}}));
    EXPECT_FALSE(isGroupListed(QStringLiteral("fam ily"), {{QStringLiteral("Family.ofg")}}));
}
