// The box with one line of text.
#include "controls/text_box.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFocusEvent>

#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class TextBoxTest : public testing::Test {
  protected:
    void loseFocus(Qt::FocusReason reason) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&box_, &out);
    }

    // The colour in the middle of the empty box.
    QColor paintedColour() {
        const QImage picture = box_.grab().toImage();
        return picture.pixelColor(picture.rect().center());
    }

    static QPalette paletteOf(Qt::GlobalColor base, Qt::GlobalColor button) {
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Button, button);
        return palette;
    }

    RecordingHost host_;
    TextBox box_;
    EventCounter losses_{box_, &TextBox::LostFocus};
};

}  // namespace

TEST_F(TextBoxTest, FiresLostFocusWheneverTheUserGoesOnChangedOrNot) {
    loseFocus(Qt::TabFocusReason);
    loseFocus(Qt::MouseFocusReason);
    box_.setText(QStringLiteral("changed"));
    loseFocus(Qt::OtherFocusReason);
    EXPECT_EQ(losses_.fired(), 3);
}

TEST_F(TextBoxTest, FiresNothingWhileAnotherWindowOrItsMenuHasTheKeyboard) {
    loseFocus(Qt::ActiveWindowFocusReason);
    loseFocus(Qt::PopupFocusReason);
    EXPECT_EQ(losses_.fired(), 0);
}

TEST_F(TextBoxTest, IsAnInputUntilItIsGivenTheColourOfButtons) {
    box_.setPalette(paletteOf(Qt::yellow, Qt::cyan));
    EXPECT_EQ(paintedColour(), QColor(Qt::yellow));
    box_.setBackgroundRole(QPalette::Button);
    EXPECT_EQ(paintedColour(), QColor(Qt::cyan));
    box_.setBackgroundRole(QPalette::Base);
    EXPECT_EQ(paintedColour(), QColor(Qt::yellow));
}

TEST_F(TextBoxTest, FollowsThePaletteWhenThatChanges) {
    box_.setBackgroundRole(QPalette::Button);
    box_.setPalette(paletteOf(Qt::yellow, Qt::cyan));
    EXPECT_EQ(paintedColour(), QColor(Qt::cyan));
    box_.setPalette(paletteOf(Qt::darkBlue, Qt::darkGreen));
    EXPECT_EQ(paintedColour(), QColor(Qt::darkGreen));
}

TEST_F(TextBoxTest, TakesNoTextWhileItIsLockedAndLooksLikeAButton) {
    box_.setPalette(paletteOf(Qt::yellow, Qt::cyan));
    box_.setLocked(true);
    type(box_, QStringLiteral("a"));
    EXPECT_EQ(box_.text(), QString());
    EXPECT_EQ(paintedColour(), QColor(Qt::cyan));
    box_.setLocked(false);
    EXPECT_EQ(paintedColour(), QColor(Qt::yellow));
    type(box_, QStringLiteral("a"));
    EXPECT_EQ(box_.text(), QStringLiteral("a"));
}
