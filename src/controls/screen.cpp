// The pointer that is set for all windows.
#include "controls/screen.h"

#include <QGuiApplication>

void resetMousePointer() {
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}
