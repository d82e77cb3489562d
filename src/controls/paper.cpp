// The colours and the measure of paper.
#include "controls/paper.h"

#include <QImage>

#include "controls/twips.h"

QPalette paperPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QPaintDevice& paperMeasure() {
    constexpr int kDotsPerMetre = qRound(kTwipsPerMetre / kTwipsPerPixel);
    static QImage dot = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        image.setDotsPerMeterX(kDotsPerMetre);
        image.setDotsPerMeterY(kDotsPerMetre);
        return image;
    }();
    return dot;
}

int paperPixels(double lineWidth) {
    return static_cast<int>(exactPixels(lineWidth));
}
