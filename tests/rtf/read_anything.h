// What must hold for whatever somebody takes for a rich text document.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <numeric>

#include "rtf/rtf_reader.h"
#include "rtf/rtf_writer.h"

// The letters of a text, a line for each paragraph, without its pictures.
inline QString lettersOf(const RichText& text) {
    QString letters;
    for (const RichParagraph& paragraph : text) {
        for (const RichRun& run : paragraph.runs) {
            if (const auto* piece = std::get_if<QString>(&run.content))
                letters += *piece;
        }
        letters += u'\n';
    }
    return letters;
}

inline QList<qsizetype> pictureSizesOf(const RichText& text) {
    QList<qsizetype> sizes;
    for (const RichParagraph& paragraph : text) {
        for (const RichRun& run : paragraph.runs) {
            if (const auto* picture = std::get_if<RichPicture>(&run.content))
                sizes += picture->file.size();
        }
    }
    return sizes;
}

// Whether a text has no more than the bytes that it was read from, and a header for each picture.
inline bool isMadeOf(const QByteArray& bytes, const RichText& text) {
    constexpr qsizetype kPictureHeader = 14;
    const QList<qsizetype> pictures = pictureSizesOf(text);
    const qsizetype allowed = bytes.size() + pictures.size() * kPictureHeader + 1;
    return std::accumulate(pictures.begin(), pictures.end(), lettersOf(text).size()) <= allowed;
}

inline RichText writtenAndRead(const RichText& text) {
    return readRtf(QString::fromLatin1(writeRtf(text)));
}

// Reads a document of any bytes and writes it: whether it is made of those bytes, keeps its
// letters, and is the same from then on, whatever may have got lost of its pictures and formats at
// first.
inline bool canReadAnything(const QByteArray& bytes) {
    const RichText text = readRtf(QString::fromLatin1(bytes));
    const RichText again = writtenAndRead(text);
    return !text.empty() && isMadeOf(bytes, text) && lettersOf(again) == lettersOf(text) &&
           writtenAndRead(again) == again;
}
