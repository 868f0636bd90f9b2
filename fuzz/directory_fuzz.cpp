#include "base/ldif.h"
#include "fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace ornavel;
    LdifReader reader({reinterpret_cast<const char*>(bytes), size});
    std::size_t line = 0;
    try {
        for (LdifEntry entry; reader.next(entry);) {
            fuzz::require(entry.line > line && !entry.attributes.empty());
            line = entry.line;
        }
    } catch (const FileError& error) {
        fuzz::require(error.at().line > 0 && error.at().column > 0);
    }
    return 0;
}
