// Qt's reader and writer of bitmaps.
#include "controls/bitmap.h"

#include <QBuffer>

QByteArray bitmapOf(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "BMP");
    return bytes;
}

QImage pictureOf(const QByteArray& bitmap) {
    return QImage::fromData(bitmap, "BMP");
}
