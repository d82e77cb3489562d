// The size and the painting of pictures.
#include "controls/picture_object.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>
#include <QTextFormat>
#include <QUrl>

void PictureObject::paintPicturesOf(QTextDocument& document) {
    document.documentLayout()->registerHandler(QTextFormat::ImageObject,
                                               new PictureObject(&document));
}

QSizeF PictureObject::intrinsicSize(QTextDocument*, int, const QTextFormat& format) {
    const QTextImageFormat picture = format.toImageFormat();
    return {picture.width(), picture.height()};
}

void PictureObject::drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int,
                               const QTextFormat& format) {
    const auto picture =
        document->resource(QTextDocument::ImageResource, QUrl(format.toImageFormat().name()))
            .value<QImage>();
    const QSize size = painter->deviceTransform().mapRect(place).size().toSize();
    if (size.width() < picture.width() || size.height() < picture.height())
        painter->drawImage(place, scaled(picture, size));
    else
        painter->drawImage(place, picture);
}

// Scrolling paints a picture again at every step, so its last scaling is kept.
const QImage& PictureObject::scaled(const QImage& picture, QSize size) {
    if (scaledFrom_ != picture.cacheKey() || scaled_.size() != size) {
        scaledFrom_ = picture.cacheKey();
        scaled_ = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return scaled_;
}
