// The writing of rich text documents.
#pragma once

#include <QByteArray>

#include "rtf/rich_text.h"

// A document that word processors open: plain ASCII, with every character beyond it by its number.
// Read again it shows the same, but for lengths beyond 22 inches and pictures that are no PNG, JPEG
// or BMP file, which are left out.
QByteArray writeRtf(const RichText& text);
