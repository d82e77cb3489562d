// A picture as it stands in a rich text document.
#pragma once

#include <QByteArray>
#include <QStringView>
#include <optional>

#include "rtf/rich_text.h"

// Grows while the picture's group is read. Those of a kind that this does not know, such as
// metafiles, are none.
class RtfPicture {
  public:
    void takeWord(QStringView word, std::optional<Long> number);

    // The file in hexadecimal digits; anything else between them has no meaning.
    void addDigits(QStringView text);

    // The file as it is, a byte in each character.
    void addBytes(QStringView bytes);

    std::optional<RichPicture> finish() const;

  private:
    enum class Kind { Unknown, File, Bitmap };

    Kind kind_ = Kind::Unknown;
    Long width_ = 0;  // twips
    Long height_ = 0;
    Long widthScale_ = 100;  // per cent
    Long heightScale_ = 100;
    QByteArray digits_;
    QByteArray bytes_;
};
