// The program's entry.
#include <QApplication>
#include <QIcon>

#include "commands.h"
#include "controls/desktop_host.h"
#include "controls/form.h"
#include "controls/visible_boxes.h"
#include "runtime/app.h"
#include "runtime/event.h"
#include "shell/default_instance.h"
#include "shell/frmMain.h"
#include "shell/start_up.h"

int main(int, char** arguments) {
    int argumentCount = 1;  // the program has no command line: Qt sees the program's name alone
    QApplication application(argumentCount, arguments);
    QApplication::setApplicationName(App::Title());  // that of a box without a title of its own
    auto* style = new VisibleBoxes;
    style->setParent(&application);
    QApplication::setStyle(style);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/art/ondara.png")));
    DesktopHost desktop;
    const HostInForce inForce(desktop);
    runEvent(modCycles::Main);
    if (Form::forms().empty())
        return 0;
    const Commands commands(defaultInstance<frmMain>());
    return QApplication::exec();
}
