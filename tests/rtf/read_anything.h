// What must hold for whatever somebody takes for a rich text document.
#pragma once

#include <QByteArray>
#include <QString>

#include "rtf/rtf_reader.h"
#include "rtf/rtf_writer.h"

inline qsizetype charactersOf(const RichText& text) {
    qsizetype characters = 0;
    for (const RichParagraph& paragraph : text) {
        ++characters;
        for (const RichRun& run : paragraph.runs) {
            if (const auto* piece = std::get_if<QString>(&run.content))
                characters += piece->size();
            else
                characters += std::get<RichPicture>(run.content).file.size();
        }
    }
    return characters;
}

// Reads a document of any bytes, writes it and reads that: whether it grew no more than a bitmap's
// header for each picture, and whether what was written shows the same.
inline bool canReadAnything(const QByteArray& bytes) {
    constexpr qsizetype kPictureHeader = 14;
    const RichText text = readRtf(QString::fromLatin1(bytes));
    const RichText again = readRtf(QString::fromLatin1(writeRtf(text)));
    return !text.empty() && charactersOf(text) <= bytes.size() * kPictureHeader + 1 &&
           again.size() == text.size() && charactersOf(again) <= charactersOf(text);
}
