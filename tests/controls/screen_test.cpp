// The mouse pointer of all windows.
#include "controls/screen.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>

TEST(ResetMousePointer, TakesEveryPointerThatIsSetForAllWindows) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    resetMousePointer();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(ResetMousePointer, DoesNothingWhereNoneIsSet) {
    resetMousePointer();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}
