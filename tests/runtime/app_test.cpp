// What the program says of itself.
#include "runtime/app.h"

#include <gtest/gtest.h>

#include "support/recording_host.h"

TEST(App, HasOneNameAndOneVersion) {
    EXPECT_EQ(App::Title(), QStringLiteral("Ondara"));
    EXPECT_EQ(App::Major(), 2);
    EXPECT_EQ(App::Minor(), 1);
    EXPECT_EQ(App::Revision(), 0);
}

TEST(App, AsksTheHostForItsDirectoryAndItsInstances) {
    RecordingHost machine;
    machine.setProgramDirectory(QStringLiteral("/programs/Ondara"));
    EXPECT_EQ(App::Path(), QStringLiteral("/programs/Ondara"));
    EXPECT_FALSE(App::PrevInstance());
    machine.setAnotherInstanceRuns(true);
    EXPECT_TRUE(App::PrevInstance());
}
