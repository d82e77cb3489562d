// The people of an old database who cannot be in a new one.
#include "store/left_out.h"

#include <gtest/gtest.h>

namespace {

const OldPerson kAnn{.nameId = 12,
                     .name = QStringLiteral("Brown"),
                     .firstName = QStringLiteral("Ann"),
                     .isFemale = true,
                     .catId = 1,
                     .notes = QStringLiteral("No date.\r\nNone at all.")};

}  // namespace

TEST(LeftOut, KeepsAllThatIsKnownOfThem) {
    LeftOut people;
    people.add(kAnn, QStringLiteral("Family"));
    people.add({.nameId = 13, .name = QStringLiteral("Weiß"), .firstName = QString(), .catId = 99},
               {});
    people.add({.nameId = 14, .notes = QStringLiteral("")}, {});
    EXPECT_EQ(people.text(),
              u"The people of the old database who have no birth date.\r\n"
              u"\r\nNameID: 12\r\nName: Brown\r\nFName: Ann\r\nGender: female\r\n"
              u"CatID: 1 (Family)\r\nNotes: No date.\r\nNone at all.\r\n"
              u"\r\nNameID: 13\r\nName: Weiß\r\nFName: \r\nGender: male\r\nCatID: 99\r\n"
              u"\r\nNameID: 14\r\nGender: male\r\nNotes: \r\n");
}

TEST(LeftOut, NamesThem) {
    LeftOut people;
    EXPECT_TRUE(people.isEmpty());
    people.add(kAnn, {});
    people.add({.nameId = 13, .name = QStringLiteral("Weiß")}, {});
    people.add({.nameId = 14, .name = QStringLiteral(" ")}, {});
    EXPECT_FALSE(people.isEmpty());
    EXPECT_EQ(people.message(QStringLiteral("people.txt"), QStringLiteral("old.mdb")),
              u"Ondara has taken over your old database, but for the people without a birth "
              u"date:\n\nBrown, Ann\nWeiß\nNameID 14\n\nAll that is known of them is kept in "
              u"\"people.txt\", and the old database as \"old.mdb\".");
}

TEST(LeftOut, NamesTheFirstTenOfMany) {
    LeftOut people;
    for (Long id = 1; id <= 10; ++id)
        people.add({.nameId = id}, {});
    EXPECT_TRUE(people.message({}, {}).contains(QStringLiteral("\nNameID 10\n\n")));
    people.add({.nameId = 11}, {});
    people.add({.nameId = 12}, {});
    EXPECT_TRUE(people.message({}, {}).contains(QStringLiteral("\nNameID 10\nand 2 more\n\n")));
}
