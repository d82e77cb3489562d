// The enlarged chart.
#include "records/dlgBZoom.h"

#include <QApplication>
#include <QClipboard>

#include "controls/chart.h"
#include "controls/picture_box.h"
#include "cycles/calendar.h"
#include "shell/frmMain.h"
#include "shell/main_chart.h"
#include "support/main_window.h"

namespace {

class ChartZoom : public MainWindowTest {
  protected:
    void open() {
        loadAndChoose(QStringLiteral("Smith, Anna"));
        dialog_ = std::make_unique<dlgBZoom>(&window());
        dialog_->Show();
    }

    PictureBox& picture() { return child<PictureBox>(*dialog_, QStringLiteral("Picture1")); }
    QImage image() { return picture().pixmap().toImage(); }
    QImage enlargedChart() { return control<Chart>("chtMain").picture(2).toImage(); }

    std::unique_ptr<dlgBZoom> dialog_;
};

TEST_F(ChartZoom, ShowsTheMainChartEnlarged) {
    open();
    EXPECT_EQ(dialog_->windowTitle(), QStringLiteral("Biorhythm Zoom"));
    EXPECT_EQ(image(), enlargedChart());
    EXPECT_EQ(dialog_->size(), control<Chart>("chtMain").size() * 2);
}

TEST_F(ChartZoom, ShowsTheChartAsItStoodWhenItWasOpened) {
    open();
    const QImage then = image();
    modCycles::RedrawMainChart(modCycles::DateSerial(1980, 1, 1),
                               modCycles::DateSerial(2010, 5, 5));
    ASSERT_NE(enlargedChart(), then);
    EXPECT_EQ(image(), then);
}

TEST_F(ChartZoom, LeavesTheClipboardToTheUser) {
    QApplication::clipboard()->setText(QStringLiteral("the user's"));
    open();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("the user's"));
}

TEST_F(ChartZoom, GoesAtAClickAndSaysSo) {
    open();
    EXPECT_EQ(picture().toolTip(), QStringLiteral("Click to close window"));
    click(picture());
    EXPECT_FALSE(dialog_->isLoaded());
    EXPECT_FALSE(dialog_->isVisible());
}

}  // namespace
