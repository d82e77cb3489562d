// The status of the record editors.
#include "records/editor_status.h"

#include <gtest/gtest.h>

#include "support/printing.h"

TEST(EditorStatus, TellsThePlaceOfTheRow) {
    EXPECT_EQ(recordStatus(1), QStringLiteral("Record: 1"));
    EXPECT_EQ(recordStatus(100000), QStringLiteral("Record: 100000"));
    EXPECT_EQ(recordStatus(-3), QStringLiteral("Record: -3"));
}

TEST(EditorStatus, TellsThatARowIsAddedOrEdited) {
    EXPECT_EQ(addStatus(), QStringLiteral("Add record"));
    EXPECT_EQ(editStatus(), QStringLiteral("Edit record"));
}
