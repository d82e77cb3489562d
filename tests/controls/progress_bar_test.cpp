// The bar that fills up.
#include "controls/progress_bar.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/errors.h"

TEST(ProgressBar, KeepsItsValueUnrounded) {
    ProgressBar bar;
    EXPECT_EQ(bar.Value(), 0);
    bar.setValue(78.10275741145306);
    EXPECT_EQ(bar.Value(), 78.10275741145306);
}

TEST(ProgressBar, IsFilledByTheShareOfItsValueToThePixel) {
    ProgressBar bar;
    bar.resize(250, 20);
    bar.show();
    EXPECT_EQ(bar.maximum(), 250);
    const auto share = [&bar] { return static_cast<double>(bar.value()) / bar.maximum(); };
    EXPECT_EQ(share(), 0);
    for (const double percent : {0.0, 12.3, 50.0, 99.99, 100.0}) {
        bar.setValue(percent);
        EXPECT_NEAR(share(), percent / 100, 0.5 / 250) << percent;
    }
    bar.setValue(50);
    bar.resize(400, 20);
    EXPECT_EQ(bar.value(), 200);
}

TEST(ProgressBar, ShowsNoFigure) {
    const ProgressBar bar;
    EXPECT_FALSE(bar.isTextVisible());
}

TEST(ProgressBar, RaisesAnErrorForWhatIsNoPercentage) {
    ProgressBar bar;
    bar.setValue(40);
    for (const double value : {-0.01, 100.01, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(errorOf([&] { bar.setValue(value); }), 380) << value;
    EXPECT_EQ(bar.Value(), 40);
}

TEST(ProgressBar, FollowsTheDesktopWithTheColourOfItsCycle) {
    QWidget window;
    ProgressBar bar(&window);
    bar.setCycle(CycleColour::Average);
    for (const QColor& desktop : {QColor(46, 46, 50), QColor(Qt::white)}) {
        window.setPalette(QPalette(desktop));
        EXPECT_EQ(bar.palette().color(QPalette::Highlight),
                  cycleColour(CycleColour::Average, window.palette()));
    }
}
