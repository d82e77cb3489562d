// The people of an old database in a new one.
#pragma once

#include "store/left_out.h"
#include "store/new_database.h"
#include "store/old_database.h"

// Writes all categories and people of the old database into the new one, which has the tables and
// no rows. All numbers stay as they are, and none that the old database has ever given away, so far
// as it tells, is given away again. A name that is Null becomes "".
//
// Returns the people who are left out. Raises 321 where numbers contradict each other, 440 where
// there would be nobody at all, and else what the reading of Jet files raises.
LeftOut addAdoptedPeople(const OldDatabase& old, NewDatabase& made);
