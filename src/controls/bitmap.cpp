// Qt's reader and writer of bitmaps, and its name for a picture on the clipboard.
#include "controls/bitmap.h"

#include <QBuffer>

namespace {

const QString kPicture = QStringLiteral("application/x-qt-image");

}  // namespace

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

QStringList BitmapData::formats() const {
    return {kPicture};
}

QVariant BitmapData::retrieveData(const QString& format, QMetaType) const {
    return format == kPicture ? QVariant(pictureOf(file_)) : QVariant();
}
