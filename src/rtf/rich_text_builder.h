// The putting together of a text from its beginning on.
#pragma once

#include "rtf/rich_text.h"

// Texts that follow each other in one format become one run.
class RichTextBuilder {
  public:
    void add(QStringView text, const RichFormat& format);
    void add(RichPicture picture, const RichFormat& format);

    // Whether the paragraph has nothing yet.
    bool isAtBeginning() const { return paragraphs_.back().runs.empty(); }

    // Ends the paragraph, in the format that it has and that of its end, and begins another.
    void endParagraph(const RichParagraphFormat& format, const RichFormat& endFormat);

    // The text, whose last paragraph is the one that has begun. This is then used up.
    RichText finish(const RichParagraphFormat& format, const RichFormat& endFormat);

  private:
    RichText paragraphs_ = RichText(1);
};
