// The host in force.
#include "runtime/host.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

TEST(HostInForce, IsTheLastOneInstalledAndThenTheOneBefore) {
    RecordingHost outer;
    EXPECT_EQ(&host(), &outer);
    {
        RecordingHost inner;
        EXPECT_EQ(&host(), &inner);
    }
    EXPECT_EQ(&host(), &outer);
}

TEST(Host, TellsTodayWithoutTheTime) {
    RecordingHost machine;
    machine.setNow(DateSerial(2000, 3, 14) + 0.999);
    EXPECT_EQ(machine.today(), DateSerial(2000, 3, 14));
}

TEST(Host, TellsTodayAnewEveryTime) {
    RecordingHost machine;
    machine.setNow(DateSerial(2000, 3, 14) + 0.999);
    EXPECT_EQ(host().today(), DateSerial(2000, 3, 14));
    machine.setNow(DateSerial(2000, 3, 15));
    EXPECT_EQ(host().today(), DateSerial(2000, 3, 15));
}
