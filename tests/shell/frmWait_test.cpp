// The wait window.
#include "shell/frmWait.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class WaitWindow : public testing::Test {
  protected:
    ~WaitWindow() override { unloadWaitWindow(); }

    static Form* shown() { return Form::forms().empty() ? nullptr : Form::forms().front(); }

    RecordingHost host_;
};

TEST_F(WaitWindow, AsksForPatience) {
    showWaitWindow();
    ASSERT_NE(shown(), nullptr);
    EXPECT_TRUE(shown()->isVisible());
    EXPECT_FALSE(shown()->isModal());
    EXPECT_EQ(child<QLabel>(*shown(), QStringLiteral("lblWait")).text(),
              QStringLiteral("Please wait ....."));
}

TEST_F(WaitWindow, GoesWhenItIsUnloaded) {
    showWaitWindow();
    unloadWaitWindow();
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(WaitWindow, GoesAtAClickAndMayBeUnloadedAfterwards) {
    showWaitWindow();
    click(*shown());
    EXPECT_EQ(shown(), nullptr);
    unloadWaitWindow();
    EXPECT_EQ(shown(), nullptr);
}

}  // namespace
