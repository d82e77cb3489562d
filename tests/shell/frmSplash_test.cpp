// The splash window.
#include "shell/frmSplash.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class Splash : public testing::Test {
  protected:
    RecordingHost host_;
};

TEST_F(Splash, IsItsPicture) {
    frmSplash splash;
    splash.Show();
    const auto* picture = splash.findChild<QLabel*>();
    ASSERT_NE(picture, nullptr);
    EXPECT_FALSE(picture->pixmap().isNull());
    EXPECT_EQ(picture->size(), splash.size());
}

TEST_F(Splash, GoesAtAKey) {
    frmSplash splash;
    splash.Show();
    pressKey(splash, Qt::Key_A);
    EXPECT_FALSE(splash.isLoaded());
    EXPECT_FALSE(splash.isVisible());
}

}  // namespace
