// The writing of files that are deleted again at once.
#include "store/scratch_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/files.h"
#include "support/printing.h"

TEST(ScratchFile, HoldsTheBytesAndNoneThatWereThere) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scratch"));
    makeFile(path, "longer than the new one");
    writeScratchFile(path, QByteArray("a\0b", 3));
    EXPECT_EQ(fileBytes(path), QByteArray("a\0b", 3));
}

TEST(ScratchFile, IsGoneAfterwards) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scratch"));
    writeScratchFile(path, "a");
    deleteScratchFile(path);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(errorOf([&] { deleteScratchFile(path); }), 75);
}

TEST(ScratchFile, CannotBeWrittenOverAFolder) {
    const QTemporaryDir folder;
    EXPECT_EQ(errorOf([&] { writeScratchFile(folder.path(), "a"); }), 75);
    EXPECT_TRUE(QDir(folder.path()).exists());
}

#ifdef Q_OS_LINUX
TEST(ScratchFile, LeavesNothingOnAFullDisk) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scratch"));
    for (const qsizetype size : {1, 1'000'000}) {
        ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), path));
        EXPECT_EQ(errorOf([&] { writeScratchFile(path, QByteArray(size, 'a')); }), 61) << size;
        EXPECT_TRUE(
            QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot))
            << size;
    }
}
#endif
