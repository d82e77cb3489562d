// How an error of a file is worded.
#include "store/file_error.h"

#include <gtest/gtest.h>

#include <QDir>

#include "support/printing.h"

TEST(FileError, NamesTheErrorTheCauseAndTheFile) {
    const QString path = QStringLiteral("/home/anna/Ondara2.mdb");
    const RuntimeError error =
        fileError(ErrorNumber::DiskFull, QStringLiteral("no room is left"), path);
    EXPECT_EQ(error.number, 61);
    EXPECT_EQ(error.description,
              QStringLiteral("Disk full: no room is left, ") + QDir::toNativeSeparators(path));
}
