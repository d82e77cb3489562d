// The button with a picture.
#include "controls/picture_button.h"

#include <gtest/gtest.h>

#include <QAccessible>

#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class PictureButtonTest : public testing::Test {
  protected:
    PictureButtonTest() {
        button_.setText(QStringLiteral("&Details"));
        button_.show();
    }

    RecordingHost host_;
    PictureButton button_;
    EventCounter clicks_{button_, &PictureButton::Click};
};

}  // namespace

TEST_F(PictureButtonTest, FiresClickForTheMouse) {
    click(button_);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(PictureButtonTest, FiresClickForTheBlankAndForEnter) {
    pressKey(button_, Qt::Key_Space);
    EXPECT_EQ(clicks_.fired(), 1);
    pressKey(button_, Qt::Key_Return);
    EXPECT_EQ(clicks_.fired(), 2);
    pressKey(button_, Qt::Key_Enter);
    EXPECT_EQ(clicks_.fired(), 3);
}

TEST_F(PictureButtonTest, HasTheMnemonicOfItsCaption) {
    EXPECT_EQ(button_.shortcut(), QKeySequence(Qt::ALT | Qt::Key_D));
}

TEST_F(PictureButtonTest, FiresNothingWhileItIsDisabled) {
    button_.setEnabled(false);
    click(button_);
    EXPECT_EQ(clicks_.fired(), 0);
}

TEST_F(PictureButtonTest, IsReadOutByItsCaptionOrTheNameItIsGiven) {
    const auto name = [&] {
        return QAccessible::queryAccessibleInterface(&button_)->text(QAccessible::Name);
    };
    EXPECT_EQ(name(), QStringLiteral("Details"));
    button_.setText(QString());
    button_.setAccessibleName(QStringLiteral("Earlier"));
    EXPECT_EQ(name(), QStringLiteral("Earlier"));
}
