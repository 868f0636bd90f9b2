#include "settings/catalogue.h"

#include <algorithm>

namespace ornavel::settings {
namespace {

#define KEY(section, id, ...) section::id,
#define TEXT_KEY KEY
#define CHOICE_KEY KEY
#define SWITCH_KEY KEY
#define TICK_KEY KEY
#define NUMBER_KEY KEY
#define PATH_KEY KEY
constexpr Key every_key[] = {
#include "settings/catalogue.inc"
};

} // namespace

std::span<const Key> catalogue() { return every_key; }

bool is_path(TextView section, TextView name) {
    return std::ranges::any_of(every_key, [&](const Key& key) {
        return key.kind == SettingKind::path && same_name(key.section, section) && same_name(key.name, name);
    });
}

} // namespace ornavel::settings
