// The favourite files in the program's directory.
#include "store/favourites.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/files.h"
#include "support/recording_host.h"

namespace {

class Favourites : public testing::Test {
  protected:
    Favourites() { host_.setProgramDirectory(directory_.path()); }

    QByteArray bytesOf(const QString& name) { return fileBytes(directory_.filePath(name)); }

    QTemporaryDir directory_;
    RecordingHost host_;
    const QString kAnna = QStringLiteral("Smith, Anna");
};

TEST_F(Favourites, AreEighteenBytesForAnnaSmith) {
    writeFavourite({42, kAnna});
    EXPECT_EQ(bytesOf(QStringLiteral("Smith, Anna.ofp")),
              QByteArray::fromHex("34322C22536D6974682C20416E6E61220D0A"));
}

TEST_F(Favourites, OfOneTextAreOneFileTheLaterOne) {
    writeFavourite({1, kAnna});
    writeFavourite({2, kAnna});
    EXPECT_EQ(QDir(directory_.path()).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(readFavourite(kAnna), (PersonRecord{2, kAnna}));
}

TEST_F(Favourites, AreCalledByTheirFileLessFourCharacters) {
    EXPECT_EQ(favouritePattern(), QStringLiteral("*.ofp"));
    EXPECT_EQ(favouriteIn(QStringLiteral("a.b.ofp")), QStringLiteral("a.b"));
    EXPECT_EQ(favouriteIn(QStringLiteral("Smith, Anna.OFP")), kAnna);
}

TEST_F(Favourites, GoWithTheirFile) {
    writeFavourite({42, kAnna});
    deleteFavouriteFile(QStringLiteral("Smith, Anna.ofp"));
    EXPECT_EQ(errorOf([&] { readFavourite(kAnna); }), 53);
}

}  // namespace
