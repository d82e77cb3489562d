// The interpretation texts of an old database in a new one.
#pragma once

#include "store/new_database.h"
#include "store/old_database.h"

// Writes the texts of the old database into the new one, which has the table and no rows. Of
// several texts for one combination the first stays, as no other has ever been shown; so do none
// for what is no combination. A text that is Null becomes "". Raises what the reading of Jet files
// raises.
void addAdoptedInterpretations(const OldDatabase& old, NewDatabase& made);
