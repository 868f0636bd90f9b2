#include "fuzz/input.h"
#include "settings/reg_settings.h"

namespace {

using namespace ornavel;
using namespace ornavel::settings;

bool is_writable(const RegFile& file) {
    for (const RegKey& key : file.keys) {
        if (key.path.find_first_of(u"]\r\n") != Text::npos || key.path.starts_with(u'-')) return false;
        for (const RegValue& value : key.values)
            if (value.kind == RegValue::Kind::other) return false;
    }
    return true;
}

bool same(const RegFile& one, const RegFile& other) {
    if (one.keys.size() != other.keys.size()) return false;
    for (std::size_t k = 0; k < one.keys.size(); ++k) {
        const RegKey &left = one.keys[k], &right = other.keys[k];
        if (left.path != right.path || left.removed != right.removed ||
            left.values.size() != right.values.size())
            return false;
        for (std::size_t v = 0; v < left.values.size(); ++v)
            if (left.values[v].name != right.values[v].name || left.values[v].kind != right.values[v].kind ||
                left.values[v].value != right.values[v].value)
                return false;
    }
    return true;
}

} // namespace

// What is read, written and read again is the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    RegFile file;
    try {
        file = read_reg_file({reinterpret_cast<const char*>(bytes), size}, windows_1252());
    } catch (const FileError&) {
        return 0;
    }
    settings_of(file);
    if (!is_writable(file)) return 0;
    const RegFile again = read_reg_file(write_reg_file(file.keys, windows_1252()), windows_1252());
    fuzz::require(again.complaints.empty() && same(file, again));
    return 0;
}
