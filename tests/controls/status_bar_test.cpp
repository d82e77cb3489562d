// The status bar.
#include "controls/status_bar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QLabel>

#include "support/recording_host.h"
#include "support/widget_driver.h"

using modCycles::DateSerial;

TEST(StatusBar, KeepsTheWholeTextOfPanelOneHoweverNarrowItIs) {
    RecordingHost host;
    StatusBar bar;
    const QString text = QString(500, QLatin1Char('W'));
    const int narrowest = bar.minimumSizeHint().width();
    bar.setPanelText(text);
    EXPECT_EQ(bar.panelText(), text);
    EXPECT_EQ(bar.minimumSizeHint().width(), narrowest);
}

TEST(StatusBar, HasAToolTipOnPanelOneThatIsATextOfItsOwn) {
    RecordingHost host;
    StatusBar bar;
    bar.setPanelToolTip(QStringLiteral("tip"));
    bar.setPanelText(QStringLiteral("text"));
    EXPECT_EQ(bar.panelToolTip(), QStringLiteral("tip"));
    EXPECT_EQ(bar.panelText(), QStringLiteral("text"));
    EXPECT_EQ(child<QLabel>(bar, QStringLiteral("panel1")).toolTip(), QStringLiteral("tip"));
}

TEST(StatusBar, ShowsTheTimeAndTheDateOfTheSystem) {
    RecordingHost host;
    host.setNow(DateSerial(2000, 3, 14) + 0.5);
    StatusBar bar;
    const auto& time = child<QLabel>(bar, QStringLiteral("panel2"));
    const auto& date = child<QLabel>(bar, QStringLiteral("panel3"));
    EXPECT_EQ(time.text(), QStringLiteral("12:00"));
    EXPECT_EQ(date.text(), QStringLiteral("14/03/2000"));
    host.setNow(DateSerial(2000, 3, 15) + 0.25);
    bar.refreshClock();
    EXPECT_EQ(time.text(), QStringLiteral("06:00"));
    EXPECT_EQ(date.text(), QStringLiteral("15/03/2000"));
}

TEST(StatusBar, HasSmallerLettersThanTheDesktopInWhicheverUnitItsFontIsSet) {
    RecordingHost host;
    const QFont desktop = QApplication::font();
    QFont inPixels = desktop;
    inPixels.setPixelSize(20);
    QApplication::setFont(inPixels);
    const StatusBar bar;
    QApplication::setFont(desktop);
    EXPECT_LT(QFontInfo(bar.font()).pixelSize(), 20);
    EXPECT_GT(QFontInfo(bar.font()).pixelSize(), 15);
}
