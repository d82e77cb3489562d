// The writing of whole files.
#include "store/whole_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/files.h"
#include "support/printing.h"

namespace {

class WholeFile : public testing::Test {
  protected:
    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    QByteArray bytesOf(const char* name) const { return fileBytes(path(name)); }

    QTemporaryDir folder_;
};

}  // namespace

TEST_F(WholeFile, HoldsTheBytes) {
    writeWholeFile(path("new"), QByteArray("a\0b", 3));
    EXPECT_EQ(bytesOf("new"), QByteArray("a\0b", 3));
    writeWholeFile(path("new"), "c");
    EXPECT_EQ(bytesOf("new"), QByteArray("c"));
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(WholeFile, IsAsItWasUntilAllIsWritten) {
    makeFile(path("old"), "before");
    {
        QSaveFile file(path("old"));
        beginWholeFile(file);
        file.write("after");
    }
    EXPECT_EQ(bytesOf("old"), QByteArray("before"));
}

TEST_F(WholeFile, CannotBeWrittenWhereThereIsNoFolder) {
    EXPECT_EQ(errorOf([this] { writeWholeFile(path("none/new"), "a"); }), 75);
}

TEST_F(WholeFile, CannotBeWrittenOverAFolder) {
    EXPECT_EQ(errorOf([this] { writeWholeFile(folder_.path(), "a"); }), 75);
}
