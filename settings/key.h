#pragma once

#include "base/text.h"

namespace ornavel::settings {

/// How a value is meant: any text; a switch, on at exactly "True"; a tick, on at exactly "1"; a number in
/// digits; the path of a file or folder, or several with ";" between them.
enum class Kind { text, switch_, tick, number, path };

/// One setting: where it stands, how it is meant, and what an absent one reads as.
struct Key {
    TextView section;
    TextView name;
    Kind kind;
    TextView default_value;
};

/// A key whose kind the compiler knows, so that no reader of another kind takes it.
template <Kind its_kind>
struct KeyOf : Key {
    constexpr KeyOf(TextView in, TextView called, TextView fallback) : Key{in, called, its_kind, fallback} {}
};

using TextKey = KeyOf<Kind::text>;
using SwitchKey = KeyOf<Kind::switch_>;
using TickKey = KeyOf<Kind::tick>;
using NumberKey = KeyOf<Kind::number>;
using PathKey = KeyOf<Kind::path>;

} // namespace ornavel::settings
