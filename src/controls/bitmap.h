// Pictures as the bytes of bitmap files, in which they travel through the clipboard.
#pragma once

#include <QByteArray>
#include <QImage>

// The contents of a BMP file, with the picture's dots to the metre.
QByteArray bitmapOf(const QImage& picture);

// The picture in a BMP file; a null one for bytes that are none.
QImage pictureOf(const QByteArray& bitmap);
