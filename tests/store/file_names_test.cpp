// File names without regard to case.
#include "store/file_names.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "support/printing.h"

namespace {

class NameInFolder : public testing::Test {
  protected:
    void makeFile(const QString& name) {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QString found(const QString& name) { return nameInFolder(QDir(folder_.path()), name); }

    QTemporaryDir folder_;
};

TEST_F(NameInFolder, FindsAFileThatDiffersInCaseAlone) {
    makeFile(QStringLiteral("Émile Zola.OFP"));
    EXPECT_EQ(found(QStringLiteral("émile zola.ofp")).toUpper(), QStringLiteral("ÉMILE ZOLA.OFP"));
    EXPECT_TRUE(QFile::exists(folder_.filePath(found(QStringLiteral("émile zola.ofp")))));
}

TEST_F(NameInFolder, PrefersTheFileOfJustThatName) {
    makeFile(QStringLiteral("ADA.OFP"));
    makeFile(QStringLiteral("ada.ofp"));
    EXPECT_EQ(found(QStringLiteral("ada.ofp")), QStringLiteral("ada.ofp"));
}

TEST_F(NameInFolder, LeavesTheNameOfAFileThatIsNotThere) {
    makeFile(QStringLiteral("ada.ofp"));
    EXPECT_EQ(found(QStringLiteral("Ben.ofp")), QStringLiteral("Ben.ofp"));
}

}  // namespace
