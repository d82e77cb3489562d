// Bitmaps as rich text holds them: the contents of a BMP file without its file header.
#pragma once

#include <QByteArray>

// A BMP file of such a bitmap; nothing where its own header makes no sense.
QByteArray bmpFile(const QByteArray& dib);

// The bitmap of a BMP file.
QByteArray dibOf(const QByteArray& bmpFile);

bool isBmpFile(const QByteArray& file);
