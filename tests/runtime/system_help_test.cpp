// The help viewer of the system.
#include "runtime/system_help.h"

#include <gtest/gtest.h>

#ifdef Q_OS_WIN

TEST(ShowSystemHelp, LeavesAFileThatIsNotThereToTheViewer) {
    EXPECT_TRUE(showSystemHelp(0, QStringLiteral("missing.chm")));
}

#else

TEST(ShowSystemHelp, FindsNoViewer) {
    EXPECT_FALSE(showSystemHelp(0, QStringLiteral("missing.chm")));
}

#endif
