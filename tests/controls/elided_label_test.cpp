// The label that shortens its text.
#include "controls/elided_label.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QHelpEvent>
#include <QToolTip>

#include "support/printing.h"

namespace {

const QString kLong = QStringLiteral("A text for which a narrow label has no room at all");

// What the mouse is told when it rests over a label.
QString shownToolTip(QWidget& label) {
    QToolTip::hideText();
    QHelpEvent rest(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&label, &rest);
    return QToolTip::text();
}

TEST(ElidedLabel, AsksForNoRoomForItsText) {
    ElidedLabel label;
    label.setText(kLong);
    EXPECT_LT(label.minimumSizeHint().width(), label.fontMetrics().horizontalAdvance(kLong) / 4);
    EXPECT_EQ(label.sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
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

TEST(ElidedLabel, TellsTheWholeTextInItsToolTipWhereItIsShortened) {
    ElidedLabel label;
    label.setText(kLong);
    label.resize(120, 24);
    EXPECT_EQ(shownToolTip(label), kLong);
    label.setToolTip(QStringLiteral("a tip of its own"));
    EXPECT_EQ(shownToolTip(label), label.toolTip());
}

TEST(ElidedLabel, HasNoToolTipWhereItShowsTheWholeText) {
    ElidedLabel label;
    label.setText(kLong);
    label.resize(1200, 24);
    EXPECT_EQ(shownToolTip(label), QString());
}

}  // namespace
