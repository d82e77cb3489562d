#include "store/statements.h"
