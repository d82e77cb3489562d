// The number of the run-time error that some steps raise.
#pragma once

#include "runtime/errors.h"

// 0 if they raise none.
template <class Steps>
int errorNumberOf(Steps steps) {
    try {
        steps();
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return 0;
}
