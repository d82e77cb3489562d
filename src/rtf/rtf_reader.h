// The reading of rich text documents.
#pragma once

#include <QStringView>

#include "rtf/rich_text.h"

// Whether a text says of itself that it is such a document.
bool isRtf(QStringView text);

// What a document shows. Any text can be read: words that are not known change nothing, groups that
// are for others are passed over, and a document that breaks off ends there. It also ends with its
// first group, whatever follows. Characters stand for themselves, \'hh for those of the code page
// Windows-1252; line ends as they stand are none.
//
// Groups are followed to a depth of 200, and what lies deeper is passed over. What the reader makes
// grows with the document alone.
RichText readRtf(QStringView document);
