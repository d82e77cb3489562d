// Pictures as the bytes of bitmap files, in which they travel through the clipboard.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QMimeData>
#include <utility>

// The contents of a BMP file, with the picture's dots to the metre.
QByteArray bitmapOf(const QImage& picture);

// The picture in a BMP file; a null one for bytes that are none.
QImage pictureOf(const QByteArray& bitmap);

// A bitmap file on the clipboard: the picture is made of it only for those who ask for one.
class BitmapData final : public QMimeData {
    Q_OBJECT

  public:
    explicit BitmapData(QByteArray file) : file_(std::move(file)) {}

    const QByteArray& file() const { return file_; }

    QStringList formats() const override;

  protected:
    QVariant retrieveData(const QString& format, QMetaType type) const override;

  private:
    QByteArray file_;
};
