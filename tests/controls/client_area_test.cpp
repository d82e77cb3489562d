// The inside of a window.
#include "controls/client_area.h"

#include <gtest/gtest.h>

#include "support/event_counter.h"

TEST(ClientAreaTest, TellsOfEverySize) {
    ClientArea area;
    int sizes = 0;
    QObject::connect(&area, &ClientArea::Resize, [&sizes] { ++sizes; });
    area.resize(100, 100);
    area.show();
    EXPECT_EQ(sizes, 1);
    area.resize(120, 100);
    EXPECT_EQ(sizes, 2);
}
