// What the benchmarks run in: the main window over the databases beside the program.
#pragma once

#include <QString>
#include <QWidget>

#include "controls/list_box.h"
#include "runtime/app.h"
#include "shell/main_controls.h"

inline QString database() {
    return App::Path() + QStringLiteral("/Ondara2.mdb");
}

inline QString interpretationDatabase() {
    return App::Path() + QStringLiteral("/Interp.mdb");
}

inline QWidget* mainWindow() {
    return mainControls().lstMain->window();
}
