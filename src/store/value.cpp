#include "store/value.h"
