// The picture that can be clicked.
#include "controls/picture_box.h"

#include <gtest/gtest.h>

#include <QTest>

#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class PictureBoxTest : public testing::Test {
  protected:
    PictureBoxTest() {
        QPixmap picture(40, 30);
        picture.fill(Qt::white);
        box_.setPixmap(picture);
        box_.show();
    }

    RecordingHost host_;
    PictureBox box_;
    EventCounter clicks_{box_, &PictureBox::Click};
};

}  // namespace

TEST_F(PictureBoxTest, FiresClickOnceForAClick) {
    click(box_);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(PictureBoxTest, FiresNothingBeforeTheButtonIsLetGo) {
    pressMouse(box_, {5, 5});
    EXPECT_EQ(clicks_.fired(), 0);
    releaseMouse(box_, {5, 5});
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(PictureBoxTest, FiresNothingForAMouseThatIsDraggedAway) {
    dragMouse(box_, {5, 5}, {500, 5});
    EXPECT_EQ(clicks_.fired(), 0);
}

TEST_F(PictureBoxTest, FiresNothingForTheRightButton) {
    QTest::mouseClick(&box_, Qt::RightButton);
    EXPECT_EQ(clicks_.fired(), 0);
}
