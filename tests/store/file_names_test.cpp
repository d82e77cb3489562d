// File names without regard to case.
#include "store/file_names.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "support/files.h"
#include "support/printing.h"

namespace {

class NameInFolder : public testing::Test {
  protected:
    void make(const QString& name) { makeFile(folder_.filePath(name)); }

    QString found(const QString& name) { return nameInFolder(QDir(folder_.path()), name); }

    QTemporaryDir folder_;
};

TEST_F(NameInFolder, FindsAFileThatDiffersInCaseAlone) {
    make(QStringLiteral("Émile Zola.OFP"));
    EXPECT_EQ(found(QStringLiteral("émile zola.ofp")).toUpper(), QStringLiteral("ÉMILE ZOLA.OFP"));
    EXPECT_TRUE(QFile::exists(folder_.filePath(found(QStringLiteral("émile zola.ofp")))));
}

TEST_F(NameInFolder, PrefersTheFileOfJustThatName) {
    make(QStringLiteral("ADA.OFP"));
    make(QStringLiteral("ada.ofp"));
    EXPECT_EQ(found(QStringLiteral("ada.ofp")), QStringLiteral("ada.ofp"));
}

TEST_F(NameInFolder, LeavesTheNameOfAFileThatIsNotThere) {
    make(QStringLiteral("ada.ofp"));
    EXPECT_EQ(found(QStringLiteral("Ben.ofp")), QStringLiteral("Ben.ofp"));
}

}  // namespace
