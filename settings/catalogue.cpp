#include "settings/catalogue.h"

#include <algorithm>

namespace ornavel::settings {
namespace {

#define ROW(section, id, name, fallback) section::id,
#define TEXT ROW
#define SWITCH ROW
#define TICK ROW
#define NUMBER ROW
#define PATH ROW
constexpr Key every_key[] = {
#include "settings/catalogue.inc"
};

} // namespace

std::span<const Key> catalogue() { return every_key; }

bool is_path(TextView section, TextView name) {
    return std::ranges::any_of(every_key, [&](const Key& key) {
        return key.kind == Kind::path && same_name(key.section, section) && same_name(key.name, name);
    });
}

} // namespace ornavel::settings
