// The program's entry.
#include <QApplication>
#include <QIcon>

#include "controls/desktop_host.h"
#include "controls/form.h"
#include "runtime/event.h"
#include "shell/start_up.h"

int main(int, char** arguments) {
    int argumentCount = 1;  // the program has no command line: Qt sees the program's name alone
    QApplication application(argumentCount, arguments);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/art/ondara.png")));
    DesktopHost desktop;
    const HostInForce inForce(desktop);
    runEvent(modCycles::Main);
    return Form::forms().empty() ? 0 : QApplication::exec();
}
