#pragma once

#include "compose/merge_rows.h"

#include <functional>
#include <set>

namespace ornavel::workbench {

/// The fields of templates and signatures, such as "[#SigFullname#]", out of the tables of the merges.
struct KnownFields {
    std::set<Text> filled;           ///< that the merge of a message fills, found by running it
    std::set<Text> mentioned;        ///< that its tables mention
    std::set<Text> signature_files;  ///< that only the mail client's own signature files know
    std::vector<Text> names() const; ///< of those that are filled
};

const KnownFields& known_fields();

/// The field of a key: "[#" + its name + "#]".
Text field_of(const settings::Key& key);

/// Calls for each row that puts a setting into a message, and for nothing else.
void for_each_value(const std::function<void(const compose::MergeRow&)>& take);

/// Settings in which every signature field has the given value.
settings::MemoryStore all_fields(TextView value);

/// The text after the merge of a message with these settings.
Text merged(TextView text, const settings::Store& store);

} // namespace ornavel::workbench
