#pragma once

#include "base/text.h"

namespace ornavel::settings {

/// How a value is meant: any text; a switch, on at exactly "True"; a tick, on at exactly "1"; a number in
/// digits; the path of a file or folder, or several with ";" between them.
enum class SettingKind { text, switch_, tick, number, path };

/// One setting: where it stands, how it is meant, and what an absent one reads as.
struct Key {
    TextView section;
    TextView name;
    SettingKind kind;
    TextView default_value;
};

/// A key whose kind the compiler knows, so that no reader of another kind takes it.
template <SettingKind its_kind>
struct KeyOf : Key {
    constexpr KeyOf(TextView in, TextView called, TextView fallback) : Key{in, called, its_kind, fallback} {}
};

using TextKey = KeyOf<SettingKind::text>;
using SwitchKey = KeyOf<SettingKind::switch_>;
using TickKey = KeyOf<SettingKind::tick>;
using NumberKey = KeyOf<SettingKind::number>;
using PathKey = KeyOf<SettingKind::path>;

} // namespace ornavel::settings
