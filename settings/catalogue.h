#pragma once

#include "base/text.h"

#include <span>

namespace ornavel::settings {

/// How a value is meant: any text; a switch, on at exactly "True"; a tick, "1" or "0"; a number in digits;
/// the path of a file or folder.
enum class Kind { text, flag, tick, number, path };

/// One setting: where it stands, how it is meant, and what an absent one reads as.
struct Key {
    TextView section;
    TextView name;
    Kind kind;
    TextView default_value;
};

inline constexpr TextView admin_section = u"Admin Settings";
inline constexpr TextView user_section = u"User Settings";
inline constexpr TextView system_section = u"System Settings";
inline constexpr TextView templates_section = u"Template Settings";

#define TEXT(section, id, name, fallback)                                                                    \
    namespace section {                                                                                      \
    inline constexpr Key id{section##_section, u"" name, Kind::text, u"" fallback};                          \
    }
#define SWITCH(section, id, name, fallback)                                                                  \
    namespace section {                                                                                      \
    inline constexpr Key id{section##_section, u"" name, Kind::flag, fallback};                              \
    }
#define TICK(section, id, name, fallback)                                                                    \
    namespace section {                                                                                      \
    inline constexpr Key id{section##_section, u"" name, Kind::tick, u"" fallback};                          \
    }
#define NUMBER(section, id, name, fallback)                                                                  \
    namespace section {                                                                                      \
    inline constexpr Key id{section##_section, u"" name, Kind::number, u"" fallback};                        \
    }
#define PATH(section, id, name, fallback)                                                                    \
    namespace section {                                                                                      \
    inline constexpr Key id{section##_section, u"" name, Kind::path, u"" fallback};                          \
    }
inline constexpr TextView on = u"True";
inline constexpr TextView off = u"False";
#include "settings/catalogue.inc"
#undef TEXT
#undef SWITCH
#undef TICK
#undef NUMBER
#undef PATH

/// Every key that the add-in reads or writes, in the order of its sections.
std::span<const Key> catalogue();

/// Whether the key with this name is the path of a file or folder. Names compare without case.
bool is_path(TextView section, TextView name);

} // namespace ornavel::settings
