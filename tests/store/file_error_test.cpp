// How an error of a file is worded.
#include "store/file_error.h"

#include <gtest/gtest.h>

#include "support/printing.h"

TEST(FileError, NamesTheErrorTheCauseAndTheFile) {
    const RuntimeError error = fileError(ErrorNumber::DiskFull, QStringLiteral("no room is left"),
                                         QStringLiteral("/home/anna/Ondara2.mdb"));
    EXPECT_EQ(error.number, 61);
    EXPECT_EQ(error.description,
              QStringLiteral("Disk full: no room is left, /home/anna/Ondara2.mdb"));
}
