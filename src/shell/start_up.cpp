// The start, step by step.
#include "shell/start_up.h"

#include "runtime/app.h"
#include "runtime/host.h"
#include "shell/default_instance.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "store/adoption.h"

namespace modCycles {

namespace {

void refuseSecondInstance() {
    host().showMessage({.text = QStringLiteral("Cannot load program again."),
                        .title = QStringLiteral("The requested application is already open"),
                        .icon = MessageIcon::Exclamation});
}

// The databases are such as the rest of the program can read from here on.
void adoptOldDatabases(QObject* owner) {
    adoptInterpretations();
    const std::optional<Adoption> people = adoptPeople();
    if (people && !people->leftOut.isEmpty())
        host().showMessage({.text = people->leftOut.message(people->leftOutName, people->oldName),
                            .title = App::Title(),
                            .icon = MessageIcon::Information,
                            .owner = owner});
}

}  // namespace

void Main() {
    if (App::PrevInstance()) {
        refuseSecondInstance();
        return;
    }
    auto& splash = defaultInstance<frmSplash>();
    splash.Show();
    splash.Refresh();
    adoptOldDatabases(&splash);
    auto& main = defaultInstance<frmMain>();
    main.Load();
    splash.Unload();
    main.Show();
}

}  // namespace modCycles
