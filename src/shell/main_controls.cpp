// The controls in force.
#include "shell/main_controls.h"

#include <QtGlobal>

namespace {

const MainControls* inForce = nullptr;

}  // namespace

const MainControls& mainControls() {
    Q_ASSERT(inForce);
    return *inForce;
}

void setMainControls(const MainControls* controls) {
    inForce = controls;
}
