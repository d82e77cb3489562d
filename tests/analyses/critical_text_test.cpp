// The explanation of critical days, and its styles.
#include "analyses/critical_text.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

// A range of the text, with a line end as one character.
QString textOf(const StyledRange& range) {
    return criticalText().text.remove(u'\r').mid(range.start, range.length);
}

std::vector<StyledRange> headings() {
    std::vector<StyledRange> found;
    for (const StyledRange& range : criticalText().ranges)
        if (range.isBold)
            found.push_back(range);
    return found;
}

}  // namespace

TEST(CriticalText, TellsOfThePhysicalTheEmotionalAndTheIntellectualDay) {
    EXPECT_EQ(
        criticalText().text,
        QStringLiteral(
            "Physical critical day\r\n"
            "Reactions are remarkably slower. Accidents are more likely to happen, due to too much "
            "self-confidence. You are more likely to fall ill, varying from a simple cold or "
            "measles to acute appendicitis or a heart attack. Avoid routine surgery. Instead, look "
            "for a day with high and rising cycles. A natural birth usually occurs on a physical "
            "critical day.\r\n\r\n"
            "Emotional critical day\r\n"
            "On this day people tend to be very emotional. Emotions are intense and people tend to "
            "be nervous. In about 50% of the natural births, contractions start on an emotional "
            "critical day, especially if the mother has a nervous predisposition.\r\n\r\n"
            "Intellectual critical day\r\n"
            "A day with often slow and careless intellectual reactions. Try to avoid taking "
            "important decisions. These days are characterised by a lack of concentration, "
            "absent-mindedness and poor judgement. There is a tendency to be intellectually "
            "\"dumb\". Women over 35 often give birth on an intellectual critical day."));
}

TEST(CriticalText, HasHeadingsThatStandOutInTheColoursOfTheirCycles) {
    EXPECT_EQ(headings(), (std::vector<StyledRange>{{0, 21, true, 10, 255},
                                                    {373, 22, true, 10, 0xFF0000},
                                                    {635, 25, true, 10, 65280}}));
    EXPECT_EQ(textOf(headings()[0]), QStringLiteral("Physical critical day"));
    EXPECT_EQ(textOf(headings()[1]), QStringLiteral("Emotional critical day"));
    EXPECT_EQ(textOf(headings()[2]), QStringLiteral("Intellectual critical day"));
}

TEST(CriticalText, IsPlainEverywhereElse) {
    int end = 0;
    for (const StyledRange& range : criticalText().ranges) {
        EXPECT_EQ(range.start, end);
        end += range.length;
        if (range.isBold)
            continue;
        EXPECT_EQ(range, (StyledRange{range.start, range.length, false, 8, 0}));
    }
    EXPECT_EQ(end, criticalText().text.remove(u'\r').size());
}
