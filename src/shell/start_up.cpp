// The start, step by step.
#include "shell/start_up.h"

#include "runtime/app.h"
#include "runtime/host.h"
#include "shell/default_instance.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

namespace modCycles {

namespace {

void refuseSecondInstance() {
    host().showMessage({.text = QStringLiteral("Cannot load program again."),
                        .title = QStringLiteral("The requested application is already open"),
                        .icon = MessageIcon::Exclamation});
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
    auto& main = defaultInstance<frmMain>();
    main.Load();
    splash.Unload();
    main.Show();
}

}  // namespace modCycles
