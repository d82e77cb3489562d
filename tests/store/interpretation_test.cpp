// The texts of the interpretation database.
#include "store/interpretation.h"

#include <gtest/gtest.h>

#include <QFile>

#include "support/errors.h"
#include "support/people.h"
#include "support/printing.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

class Interpretation : public testing::Test {
  protected:
    Interpretation() {
        runSql(directory_.interpretation(),
               QStringLiteral("INSERT INTO HLC VALUES (1, 0, -1, 'Up.'), (-1, 0, 1, 'Down.')"));
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

}  // namespace

TEST_F(Interpretation, IsThatOfTheThreeSigns) {
    EXPECT_EQ(readInterpretation(1, 0, -1).toText(), u"Up.");
    EXPECT_EQ(readInterpretation(-1, 0, 1).toText(), u"Down.");
}

TEST_F(Interpretation, IsMissedWhereThereIsNone) {
    EXPECT_EQ(errorOf([] { readInterpretation(1, 1, 1); }), 3021);
    QFile::remove(directory_.interpretation());
    EXPECT_EQ(errorOf([] { readInterpretation(1, 0, -1); }), 53);
}
