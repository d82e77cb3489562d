// The keys that walk through the rows.
#include "records/editor_keys.h"

#include <gtest/gtest.h>

#include <Qt>

TEST(BrowseCommandOf, ClosesByEscAndGoesToTheEndsByHomeAndEnd) {
    for (const bool withCtrl : {false, true}) {
        EXPECT_EQ(browseCommandOf(Qt::Key_Escape, withCtrl), BrowseCommand::Close);
        EXPECT_EQ(browseCommandOf(Qt::Key_Home, withCtrl), BrowseCommand::First);
        EXPECT_EQ(browseCommandOf(Qt::Key_End, withCtrl), BrowseCommand::Last);
    }
}

TEST(BrowseCommandOf, GoesUpAndDownByArrowsAndPages) {
    for (const int up : {Qt::Key_Up, Qt::Key_PageUp}) {
        EXPECT_EQ(browseCommandOf(up, false), BrowseCommand::Previous);
        EXPECT_EQ(browseCommandOf(up, true), BrowseCommand::First);
    }
    for (const int down : {Qt::Key_Down, Qt::Key_PageDown}) {
        EXPECT_EQ(browseCommandOf(down, false), BrowseCommand::Next);
        EXPECT_EQ(browseCommandOf(down, true), BrowseCommand::Last);
    }
}

TEST(BrowseCommandOf, LeavesOtherKeysAlone) {
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Return, Qt::Key_Tab, Qt::Key_A})
        EXPECT_EQ(browseCommandOf(key, false), std::nullopt);
}
