// Room for the longest of several texts.
#include "controls/label_room.h"

#include <gtest/gtest.h>

#include <QLabel>

TEST(LabelRoom, IsAsHighAsTheTextInLinesOfTheWidth) {
    QLabel label;
    label.setWordWrap(true);
    const QString text = QStringLiteral("one two three four");
    reserveRoom(label, text, 10'000);
    EXPECT_EQ(label.minimumHeight(), label.fontMetrics().height());
    reserveRoom(label, text, label.fontMetrics().horizontalAdvance(QStringLiteral("three_")));
    EXPECT_GE(label.minimumHeight(), 3 * label.fontMetrics().height());
}
