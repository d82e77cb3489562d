// The rule for every size of the window.
#include "reports/report_window_layout.h"

#include "runtime/errors.h"

ReportWindowPlaces reportWindowPlaces(double windowWidth, QSizeF clientArea) {
    constexpr double kTextLeft = 100;
    constexpr double kTextTop = 500;
    constexpr QSizeF kAroundText(200, 600);
    constexpr double kTop = 120;
    constexpr QSizeF kButton(1095, 375);
    constexpr double kLeftOfMiddle = 547;
    constexpr double kBetweenButtons = 1145;
    constexpr double kBoxLeft = 120;

    const QSizeF text = clientArea - kAroundText;
    if (text.width() < 0 || text.height() < 0)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    const QPointF print(windowWidth / 2 - kLeftOfMiddle, kTop);
    const QPointF beside(kBetweenButtons, 0);
    return {.rtbDaily = {QPointF(kTextLeft, kTextTop), text},
            .cmdPrint = {print, kButton},
            .cmdClose = {print + beside, kButton},
            .cmdSave = {print - beside, kButton},
            .chkColour = {QPointF(kBoxLeft, kTop), kButton}};
}
