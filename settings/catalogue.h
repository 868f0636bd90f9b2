#pragma once

#include "settings/key.h"

#include <span>

namespace ornavel::settings {

inline constexpr TextView admin_section = u"Admin Settings";
inline constexpr TextView user_section = u"User Settings";
inline constexpr TextView system_section = u"System Settings";
inline constexpr TextView templates_section = u"Template Settings";

// The names of these macros are none of Windows', whose headers may come before or after this one.
#define KEY_OF_TYPE(type, section, id, name, fallback)                                                       \
    namespace section {                                                                                      \
    inline constexpr type id{section##_section, u"" name, fallback};                                         \
    }
#define TEXT_KEY(section, id, name, fallback, ...) KEY_OF_TYPE(TextKey, section, id, name, u"" fallback)
#define CHOICE_KEY(section, id, name, fallback, ...) KEY_OF_TYPE(TextKey, section, id, name, u"" fallback)
#define SWITCH_KEY(section, id, name, fallback, ...) KEY_OF_TYPE(SwitchKey, section, id, name, fallback)
#define TICK_KEY(section, id, name, fallback, ...) KEY_OF_TYPE(TickKey, section, id, name, u"" fallback)
#define NUMBER_KEY(section, id, name, fallback, ...) KEY_OF_TYPE(NumberKey, section, id, name, u"" fallback)
#define PATH_KEY(section, id, name, fallback, ...) KEY_OF_TYPE(PathKey, section, id, name, u"" fallback)
inline constexpr TextView on = u"True";
inline constexpr TextView off = u"False";
#include "settings/catalogue.inc"
#undef TEXT_KEY
#undef CHOICE_KEY
#undef SWITCH_KEY
#undef TICK_KEY
#undef NUMBER_KEY
#undef PATH_KEY
#undef KEY_OF_TYPE

/// Every key that the add-in reads or writes, in the order of its sections.
std::span<const Key> catalogue();

/// Whether the key with this name is the path of a file or folder. Names compare without case.
bool is_path(TextView section, TextView name);

} // namespace ornavel::settings
