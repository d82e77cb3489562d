// The printing of a rich text, and its layout as on paper.
#pragma once

#include "cycles/integers.h"

class Printer;
class RichTextBox;

// A rectangle of a page, in twips from the corner of what can be printed.
struct PrintArea {
    Long left;
    Long top;
    Long right;
    Long bottom;

    friend bool operator==(const PrintArea&, const PrintArea&) = default;
};

// What the margins, in twips, leave of the paper. Raises 6 (Overflow) beyond 32 bits.
PrintArea printArea(const Printer& printer, Long leftMargin, Long topMargin, Long rightMargin,
                    Long bottomMargin);

namespace modCycles {

// Wraps the lines of the box as on the default printer's paper, with margins in twips, and returns
// how wide they are, in twips. Raises 482 without a printer, 6 as printArea does.
Long WysiwygRtf(RichTextBox& rtf, Long leftMargin, Long rightMargin);

// Prints the whole text on the default printer, on as many pages as it takes, with margins in
// twips. Raises 482 for a printer that is not there or fails, 6 as printArea does.
void PrintRtf(const RichTextBox& rtf, Long leftMargin, Long topMargin, Long rightMargin,
              Long bottomMargin);

}  // namespace modCycles
