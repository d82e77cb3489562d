// A picture that shows how it is painted smaller.
#pragma once

#include <QImage>

// Lines of a pixel, so fine that a picture painted smaller by leaving pixels out is of one colour.
inline QImage fineLines() {
    QImage picture(200, 200, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    }
    return picture;
}
