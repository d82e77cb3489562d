#include "store/connection.h"
