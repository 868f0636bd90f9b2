#pragma once

#include "settings/catalogue.h"

namespace ornavel::settings {

/// What a setting is about, in the order in which people look for it.
enum class Group {
    lifecycle,
    sending,
    composing,
    clean_up,
    signature_fields,
    signature_rules,
    dialogs,
    errors,
    usage_log,
    environment
};

/// Whose a setting is: an administrator's rule, a user's choice, or what the add-in remembers for itself.
enum class Owner { administrator, user, state };

/// The parts of the add-in that read a setting, with commas between; none: it has no effect and never will.
struct Readers {
    TextView parts;
    bool not_yet = false; ///< none of them is built
};

/// What an administrator is told about a setting. The add-in itself never calls for this, so that it carries
/// none of these texts.
struct Description {
    const Key& key;
    Group group;
    Owner owner;
    TextView allowed; ///< the values that are told apart, with "|" between; empty: any value
    Readers readers;
    TextView writers; ///< the parts of the add-in that save it, with commas between
    TextView meaning; ///< one sentence
};

/// One for each key, in the catalogue's order.
std::span<const Description> descriptions();

/// The group's name as a heading gives it, such as "dialogs and preview".
TextView name_of(Group group);
TextView name_of(Owner owner);

} // namespace ornavel::settings
