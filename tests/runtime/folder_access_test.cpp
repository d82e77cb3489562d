// What may be done in a folder.
#include "runtime/folder_access.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

TEST(CanMakeFilesIn, HoldsForAFolderOfOnesOwnAndLeavesNothingInIt) {
    const QTemporaryDir folder;
    EXPECT_TRUE(canMakeFilesIn(folder.path()));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(CanMakeFilesIn, DoesNotHoldForAFolderThatIsNone) {
    const QTemporaryDir folder;
    EXPECT_FALSE(canMakeFilesIn(folder.filePath(QStringLiteral("missing"))));
}
