// The two widths of whole number that Ondara counts in.
#pragma once

#include <cstdint>

// A day count or a key: signed, 32 bits.
using Long = std::int32_t;

// A day offset, a cycle index or a loop counter: signed, 16 bits. A scan of a hundred years does
// not fit; it takes day counts, not offsets.
using Integer = std::int16_t;
