// Looks for a Jet file that the reader cannot read. Built by clang alone, with ONDARA_FUZZ:
//
//   jet_fuzz FOLDER
//
// Begins best with Jet files in the folder, which the longest runs are found from.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "store/jet/read_any_jet.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto* bytes = reinterpret_cast<const char*>(data);
    if (!canReadAnyJet(QByteArray(bytes, static_cast<qsizetype>(size))))
        std::abort();
    return 0;
}
