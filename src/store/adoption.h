// The adoption of old databases: once, in place of themselves.
#pragma once

#include <optional>

#include "store/left_out.h"

// What has become of an old person database.
struct Adoption {
    QString oldName;      // of the file that it is kept as
    LeftOut leftOut;      // the people who are not in the new one
    QString leftOutName;  // of the file that they are kept in; "" where there are none
};

// Where the person database beside the program is a Jet file, makes it a database of today, with
// all its people under their numbers: nothing if it is none. The old file is kept. It takes place
// as a whole or not at all, as replacement.h says; a failure leaves everything as it was, and is a
// run-time error that names its cause.
std::optional<Adoption> adoptPeople();

// The same for the interpretation texts. Whether it took place.
bool adoptInterpretations();
