// Documents of all kinds, whole and damaged.
#include <gtest/gtest.h>

#include <QDir>
#include <random>

#include "rtf/read_anything.h"
#include "support/printing.h"

namespace {

std::vector<QByteArray> corpus() {
    std::vector<QByteArray> documents;
    const QDir folder(QStringLiteral(ONDARA_CORPUS));
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        documents.push_back(file.readAll());
    }
    return documents;
}

// A document with a few bytes changed, taken out or put in, some of which mean something.
QByteArray damaged(QByteArray document, std::mt19937& random) {
    const QByteArray meaningful("{}\\'*-0 19ubpf\n\x80\xFF");
    const auto below = [&random](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(end));
    };
    for (qsizetype damages = 1 + below(6); damages > 0; --damages) {
        const qsizetype place = below(document.size() + 1);
        const char byte = meaningful[below(meaningful.size())];
        switch (below(4)) {
            case 0:
                document.insert(place, byte);
                break;
            case 1:
                document.remove(place, 1 + below(5));
                break;
            case 2:
                document.insert(place, document.mid(below(document.size() + 1), below(40)));
                break;
            default:
                document.replace(place, 1, QByteArray(1, byte));
        }
    }
    return document;
}

}  // namespace

TEST(RtfCorpus, CanBeRead) {
    const std::vector<QByteArray> documents = corpus();
    ASSERT_GE(documents.size(), 8U);
    for (const QByteArray& document : documents)
        EXPECT_TRUE(canReadAnything(document)) << document.toStdString();
}

TEST(RtfCorpus, CanBeReadHoweverItIsDamaged) {
    constexpr int kRounds = 300;
    std::mt19937 random(7);
    for (const QByteArray& document : corpus()) {
        for (int round = 0; round < kRounds; ++round) {
            const QByteArray other = damaged(document, random);
            ASSERT_TRUE(canReadAnything(other)) << other.toStdString();
        }
    }
}

TEST(RtfCorpus, CanBeReadWhereverItBreaksOff) {
    for (const QByteArray& document : corpus()) {
        for (qsizetype length = 0; length < document.size(); ++length)
            ASSERT_TRUE(canReadAnything(document.first(length))) << length;
    }
}

TEST(RtfCorpus, IsReadInBytesOfAnyKind) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes("{\\rtf1");
        for (int i = 0; i < 500; ++i)
            bytes += static_cast<char>(random());
        ASSERT_TRUE(canReadAnything(bytes)) << bytes.toHex().toStdString();
    }
}
