// Where the controls of the report window lie.
#include "reports/report_window_layout.h"

#include <gtest/gtest.h>

#include "support/errors.h"

TEST(ReportWindowPlaces, FillTheWindowWithTheTextBelowTheButtons) {
    const ReportWindowPlaces places = reportWindowPlaces(6855, {6855, 5970});
    EXPECT_EQ(places.rtbDaily, QRectF(100, 500, 6655, 5370));
    EXPECT_EQ(places.chkColour, QRectF(120, 120, 1095, 375));
}

TEST(ReportWindowPlaces, HavePrintInTheMiddleOfTheWindow) {
    const ReportWindowPlaces places = reportWindowPlaces(6000, {5900, 5970});
    EXPECT_EQ(places.cmdPrint, QRectF(3000 - 547, 120, 1095, 375));
    EXPECT_EQ(places.cmdClose, QRectF(3000 - 547 + 1145, 120, 1095, 375));
    EXPECT_EQ(places.cmdSave, QRectF(3000 - 547 - 1145, 120, 1095, 375));
}

TEST(ReportWindowPlaces, AreNoneInAWindowTooSmallForTheText) {
    EXPECT_EQ(reportWindowPlaces(300, {200, 600}).rtbDaily, QRectF(100, 500, 0, 0));
    EXPECT_EQ(errorOf([] { reportWindowPlaces(300, {199, 600}); }), 380);
    EXPECT_EQ(errorOf([] { reportWindowPlaces(300, {200, 599}); }), 380);
}
