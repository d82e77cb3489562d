// The label that shortens its text.
#include "controls/elided_label.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

const QString kLong = QStringLiteral("A text for which a narrow label has no room at all");

TEST(ElidedLabel, AsksForNoRoomForItsText) {
    ElidedLabel label;
    label.setText(kLong);
    EXPECT_LT(label.minimumSizeHint().width(), label.fontMetrics().horizontalAdvance(kLong) / 4);
}

TEST(ElidedLabel, ShowsTheEllipsisAndKeepsTheWholeText) {
    ElidedLabel label;
    label.setText(kLong);
    label.resize(120, 24);
    const QImage shortened = label.grab().toImage();
    EXPECT_EQ(label.text(), kLong);

    ElidedLabel expected;
    expected.setText(label.fontMetrics().elidedText(kLong, Qt::ElideRight, 120));
    expected.resize(120, 24);
    EXPECT_EQ(shortened, expected.grab().toImage());
    EXPECT_NE(expected.text(), kLong);
}

}  // namespace
