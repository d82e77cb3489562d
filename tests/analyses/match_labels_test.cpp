// The labels that show how two people match.
#include "analyses/match_labels.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "analyses/birthdate_match.h"

TEST(MatchLabels, ShowEachCycleInFiguresWithItsLevelAsTooltip) {
    QLabel emotional;
    QLabel physical;
    QLabel intellectual;
    QLabel advice;
    QLabel sign;
    const auto text = [](const char* latin1) { return QString::fromLatin1(latin1); };
    showMatch({.percentages = {},
               .emotional = {text("1%"), text("one")},
               .physical = {text("2%"), text("two")},
               .intellectual = {text("3%"), text("three")},
               .average = text("4%"),
               .advice = text("Wait."),
               .sign = text("Star sign: Leo")},
              {emotional, physical, intellectual, advice, sign});
    EXPECT_EQ(emotional.text(), text("1%"));
    EXPECT_EQ(emotional.toolTip(), text("one"));
    EXPECT_EQ(physical.text(), text("2%"));
    EXPECT_EQ(physical.toolTip(), text("two"));
    EXPECT_EQ(intellectual.text(), text("3%"));
    EXPECT_EQ(intellectual.toolTip(), text("three"));
    EXPECT_EQ(advice.text(), text("Wait."));
    EXPECT_EQ(sign.text(), text("Star sign: Leo"));
}
