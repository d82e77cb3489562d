// The texts of the interpretation database.
#pragma once

#include "cycles/integers.h"
#include "store/value.h"

// The text for a day, by a sign for each cycle: -1 low, 0 in the middle, 1 high. Raises 3021 where
// there is none, and the errors of the store.
Value readInterpretation(Integer emotional, Integer physical, Integer intellectual);
