// Waiting for the disk.
#include "runtime/disk_sync.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

TEST(SyncFile, SaysWhetherTheDiskHasTheFile) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("bytes");
    file.flush();
    EXPECT_TRUE(syncFile(file));
    file.close();
    EXPECT_FALSE(syncFile(file));
}

TEST(SyncFolder, TakesAFolderThatIsNoneAsWell) {
    const QTemporaryDir folder;
    syncFolder(folder.path());
    syncFolder(folder.filePath(QStringLiteral("missing")));
}
