// What a window calls the person whom it is about.
#include "analyses/person_title.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/printing.h"

using modCycles::DateSerial;

TEST(PersonTitle, IsTheNameWithTheStarSignBehindIt) {
    EXPECT_EQ(personTitle(QStringLiteral("Anna Smith"), DateSerial(1972, 10, 20)),
              QStringLiteral("Anna Smith (Libra)"));
    EXPECT_EQ(personTitle(QStringLiteral("Zed"), DateSerial(1990, 5, 5)),
              QStringLiteral("Zed (Taurus)"));
}
