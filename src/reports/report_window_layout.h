// Where the controls of the report window lie.
#pragma once

#include <QRectF>

// All in twips, from the top left corner of the client area.
struct ReportWindowPlaces {
    QRectF rtbDaily;
    QRectF cmdPrint;
    QRectF cmdClose;
    QRectF cmdSave;
    QRectF chkColour;  // both of them
};

// For a window that is so wide, and a client area of that size. Raises 380 for one too small for
// the text.
ReportWindowPlaces reportWindowPlaces(double windowWidth, QSizeF clientArea);
