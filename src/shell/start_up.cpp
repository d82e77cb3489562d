// The start, step by step.
#include "shell/start_up.h"

#include "runtime/app.h"
#include "runtime/event.h"
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

// The people can be worked on from here on. The texts are only ever read: where theirs cannot be
// adopted, whoever needs one reads it in the old file, or is told there what is wrong with that.
void adoptOldDatabases(QObject* owner) {
    resumingNext(adoptInterpretations);
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
