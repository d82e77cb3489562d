// The fonts and colours of a rich text document.
#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <vector>

#include "rtf/rich_text.h"
#include "rtf/rtf_state.h"

// The tables grow while they are read, piece by piece.
class RtfTables {
  public:
    void setDefaultFont(Long number) { defaultFont_ = number; }

    // The number of the font whose name comes next, and a piece of it: a semicolon ends the name.
    void beginFont(Long number);
    void addFontName(QStringView text);

    // A part of the colour that is read, 0 to 255, and the texts between the parts: a semicolon
    // ends a colour.
    void setRed(Long value) { setPart(value, 0); }
    void setGreen(Long value) { setPart(value, 8); }
    void setBlue(Long value) { setPart(value, 16); }
    void addColourText(QStringView text);

    RichFormat format(const RtfCharacters& characters) const;

  private:
    void setPart(Long value, int shift);

    Long defaultFont_ = 0;
    std::optional<Long> font_;
    QHash<Long, QString> fonts_;
    std::optional<Long> colour_;
    std::vector<std::optional<Long>> colours_;
};
