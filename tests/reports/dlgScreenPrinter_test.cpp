// The question for the device.
#include "reports/dlgScreenPrinter.h"

#include <gtest/gtest.h>

#include <QAbstractButton>

#include "shell/handover.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class ScreenPrinter : public testing::Test {
  protected:
    ScreenPrinter() {
        modCycles::ReportToScreen = true;
        dialog_.Show();
    }
    ~ScreenPrinter() override { modCycles::ReportToScreen = true; }

    QAbstractButton& button(const char* name) {
        return child<QAbstractButton>(dialog_, QLatin1String(name));
    }

    RecordingHost host_;
    dlgScreenPrinter dialog_;
};

}  // namespace

TEST_F(ScreenPrinter, OffersTheScreenFirst) {
    EXPECT_EQ(dialog_.windowTitle(), QStringLiteral("Format output for device ..."));
    EXPECT_EQ(button("optScreen").text(), QStringLiteral("&Screen"));
    EXPECT_EQ(button("optPrinter").text(), QStringLiteral("&Printer"));
    EXPECT_EQ(button("OKButton").text(), QStringLiteral("&OK"));
    EXPECT_TRUE(button("optScreen").isChecked());
}

TEST_F(ScreenPrinter, AnswersByOk) {
    button("optPrinter").click();
    click(button("OKButton"));
    EXPECT_FALSE(modCycles::ReportToScreen);
    EXPECT_FALSE(dialog_.isLoaded());
}

TEST_F(ScreenPrinter, AnswersByEnterWhereverTheFocusIs) {
    modCycles::ReportToScreen = false;
    button("optScreen").setFocus();
    pressKey(button("optScreen"), Qt::Key_Return);
    EXPECT_TRUE(modCycles::ReportToScreen);
    EXPECT_FALSE(dialog_.isLoaded());
}

TEST_F(ScreenPrinter, AnswersNothingWhereItIsClosed) {
    button("optPrinter").click();
    dialog_.close();
    EXPECT_TRUE(modCycles::ReportToScreen);
}
