// Looks for a document that the reader cannot read. Built by clang alone, with ONDARA_FUZZ, as
// CONTRIBUTING.md says.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "rtf/read_anything.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto* bytes = reinterpret_cast<const char*>(data);
    if (!canReadAnything(QByteArray(bytes, static_cast<qsizetype>(size))))
        std::abort();
    return 0;
}
