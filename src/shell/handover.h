// What forms hand each other by name, the whole of what is global to the program besides the main
// window's controls.
#pragma once

#include "cycles/integers.h"

namespace modCycles {

// The NameID of the person that the next form is to open; 0 means none. A caller sets it, opens its
// form modally, and clears it when that returns.
inline Long SelectedNameID = 0;

// Whether a report goes to the screen. True at the start of each report.
inline bool ReportToScreen = true;

}  // namespace modCycles
