// RapidCheck, where there is one for the system that is built for. Where there is none, the macro
// RC_GTEST_PROP is missing, and the properties behind it are left out.
#pragma once

#if __has_include(<rapidcheck/gtest.h>)
#include <rapidcheck/gtest.h>
#endif
