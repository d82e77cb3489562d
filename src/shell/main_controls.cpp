// The controls in force.
#include "shell/main_controls.h"

#include <QtGlobal>

#include "controls/list_box.h"

namespace {

const MainControls* inForce = nullptr;

}  // namespace

const MainControls& mainControls() {
    Q_ASSERT(inForce);
    return *inForce;
}

Long chosenNameId() {
    const ListBox& people = *mainControls().lstMain;
    return people.ItemData(people.ListIndex());
}

void setMainControls(const MainControls* controls) {
    inForce = controls;
}
