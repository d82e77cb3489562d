#include "store/list_fillers.h"
