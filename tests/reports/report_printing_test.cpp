// The printing of a rich text.
#include "reports/report_printing.h"

#include <gtest/gtest.h>

#include <limits>

#include "controls/rich_text_box.h"
#include "support/errors.h"
#include "support/printing.h"
#include "support/recording_host.h"
#include "support/sheet_printer.h"

using namespace modCycles;

namespace {

constexpr Long kInch = 1440;

class ReportPrinting : public testing::Test {
  protected:
    ReportPrinting() {
        host_.onPrinter([this] { return std::make_unique<SheetPrinter>(tray_); });
    }

    void print() { PrintRtf(box_, kInch, kInch, kInch, kInch); }

    RecordingHost host_;
    PrinterTray tray_;
    RichTextBox box_;
};

}  // namespace

TEST_F(ReportPrinting, HasItsPlaceBetweenTheMarginsOfThePaper) {
    tray_.offsetX = 16;  // 240 twips
    tray_.offsetY = 8;
    const SheetPrinter printer(tray_);
    EXPECT_EQ(printArea(printer, 1000, 1100, 1200, 1300),
              (PrintArea{.left = 1000 - 240,
                         .top = 1100 - 120,
                         .right = 11906 - 1200 - 240,
                         .bottom = 16838 - 1300 - 120}));
}

TEST_F(ReportPrinting, TakesTheOffsetsInWholeTwips) {
    tray_.dotsPerInch = 576;
    tray_.offsetX = 1;  // 2.5 twips
    tray_.offsetY = 3;  // 7.5 twips
    const SheetPrinter printer(tray_);
    EXPECT_EQ(printArea(printer, 0, 0, 0, 0).left, -2);
    EXPECT_EQ(printArea(printer, 0, 0, 0, 0).top, -8);
    tray_.offsetX = 3;
    EXPECT_EQ(printArea(printer, 0, 0, 0, 0).left, -8);
}

// What is beyond is so at once, also where the offset would lead back.
TEST_F(ReportPrinting, OverflowsBeyondThirtyTwoBits) {
    constexpr Long kLeast = std::numeric_limits<Long>::min();
    tray_.offsetX = 16;  // 240 twips
    tray_.offsetY = 16;
    const SheetPrinter printer(tray_);
    EXPECT_EQ(errorOf([&] { printArea(printer, kLeast, 0, 0, 0); }), 6);
    EXPECT_EQ(errorOf([&] { printArea(printer, 0, kLeast, 0, 0); }), 6);
    EXPECT_EQ(errorOf([&] { printArea(printer, 0, 0, kLeast + 11'906, 0); }), 6);
    EXPECT_EQ(errorOf([&] { printArea(printer, 0, 0, 0, kLeast + 16'838); }), 6);
    EXPECT_EQ(errorOf([&] { printArea(printer, 0, 0, kLeast + 11'907, kLeast + 16'839); }), 0);
    EXPECT_EQ(errorOf([&] { WysiwygRtf(box_, kLeast + 240, kLeast + 11'907); }), 6);
}

TEST_F(ReportPrinting, WrapsTheLinesOfTheBoxAsOnPaperWhateverTheOffset) {
    for (const Long offset : {0, 16}) {
        tray_.offsetX = offset;
        EXPECT_EQ(WysiwygRtf(box_, 1000, 2 * kInch - 1000), 11906 - 2 * kInch);
        EXPECT_NEAR(box_.document()->textWidth() * 15, 11906 - 2 * kInch, 15);
    }
    EXPECT_TRUE(tray_.sheets.empty());
    EXPECT_EQ(tray_.droppedJobs, 2);
}

TEST_F(ReportPrinting, PrintsWithinTheMargins) {
    tray_.offsetX = 16;
    tray_.offsetY = 16;
    box_.setText(QStringLiteral("A line of many words. ").repeated(20));
    print();
    ASSERT_EQ(tray_.sheets.size(), 1U);
    const QRectF inked = tray_.inked(0);
    EXPECT_NEAR(inked.left(), kInch - 240, 40);
    EXPECT_GE(inked.top(), kInch - 240 - 15);
    EXPECT_LT(inked.top(), kInch - 240 + 100);
    EXPECT_LE(inked.right(), 11906 - kInch - 240);
    EXPECT_GT(inked.right(), 11906 - kInch - 240 - 1500);
}

TEST_F(ReportPrinting, TakesAsManyPagesAsTheTextNeeds) {
    QStringList lines;
    for (int line = 0; line < 150; ++line)
        lines += QStringLiteral("Line");
    box_.setText(lines.join(QStringLiteral("\r\n")));
    print();
    ASSERT_GE(tray_.sheets.size(), 2U);
    for (std::size_t sheet = 0; sheet < tray_.sheets.size(); ++sheet) {
        EXPECT_NEAR(tray_.inked(sheet).top(), kInch + 45, 60) << sheet;
        EXPECT_LE(tray_.inked(sheet).bottom(), 16838 - kInch) << sheet;
    }
    EXPECT_EQ(tray_.droppedJobs, 0);
}

TEST_F(ReportPrinting, PrintsAnEmptyTextOnAnEmptyPage) {
    print();
    EXPECT_EQ(tray_.sheets.size(), 1U);
}

TEST_F(ReportPrinting, NeedsAPrinterThatWorks) {
    tray_.isBroken = true;
    EXPECT_EQ(errorOf([this] { print(); }), 482);
    EXPECT_EQ(errorOf([this] { WysiwygRtf(box_, kInch, kInch); }), 482);
    host_.onPrinter(nullptr);
    EXPECT_EQ(errorOf([this] { print(); }), 482);
}
