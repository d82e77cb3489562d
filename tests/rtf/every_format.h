// A format that has everything that a format can have.
#pragma once

#include "rtf/rich_text.h"

inline RichFormat everyFormat(const QString& font) {
    return {.font = font,
            .points = 10.5,
            .isBold = true,
            .isItalic = true,
            .isUnderlined = true,
            .isStruckOut = true,
            .colour = 0x010203};
}
