#include "store/person_entry.h"
