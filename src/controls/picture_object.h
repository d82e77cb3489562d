// The pictures of a document, painted in the size that their place in the text gives them.
#pragma once

#include <QImage>
#include <QObject>
#include <QTextObjectInterface>

// Stands in for Qt's own pictures, which lose lines where a picture is painted smaller than it is.
class PictureObject final : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

  public:
    // From now on, for as long as the document lives.
    static void paintPicturesOf(QTextDocument& document);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;

  private:
    using QObject::QObject;

    const QImage& scaled(const QImage& picture, QSize size);

    qint64 scaledFrom_ = 0;  // which picture the last one was
    QImage scaled_;
};
