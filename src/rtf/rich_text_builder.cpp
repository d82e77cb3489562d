// The runs and paragraphs.
#include "rtf/rich_text_builder.h"

#include <utility>

void RichTextBuilder::add(QStringView text, const RichFormat& format) {
    if (text.isEmpty())
        return;
    std::vector<RichRun>& runs = paragraphs_.back().runs;
    if (!runs.empty() && runs.back().format == format) {
        if (auto* before = std::get_if<QString>(&runs.back().content)) {
            before->append(text);
            return;
        }
    }
    runs.push_back({text.toString(), format});
}

void RichTextBuilder::add(RichPicture picture, const RichFormat& format) {
    paragraphs_.back().runs.push_back({std::move(picture), format});
}

void RichTextBuilder::endParagraph(const RichParagraphFormat& format, const RichFormat& endFormat) {
    paragraphs_.back().format = format;
    paragraphs_.back().endFormat = endFormat;
    paragraphs_.emplace_back();
}

RichText RichTextBuilder::finish(const RichParagraphFormat& format, const RichFormat& endFormat) {
    endParagraph(format, endFormat);
    paragraphs_.pop_back();
    return std::move(paragraphs_);
}
