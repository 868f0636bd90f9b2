#pragma once

#include "settings/store.h"

namespace ornavel::compose {

/// One replacement of a merge. The replacement is a fixed text followed by a setting's value, either of which
/// may be missing. Where a setting gives the search text, it stands for the fixed one.
struct MergeRow {
    TextView search;
    TextView replacement = {};
    const settings::TextKey* value = nullptr;
    TextView fallback = {}; ///< the value's default here
    const settings::TextKey* search_value = nullptr;
};

/// When a block takes part: always, or by a text that is empty or filled, or by a switch that is on or not.
class When {
public:
    static constexpr When always() { return {nullptr, nullptr, true}; }
    static constexpr When empty(const settings::TextKey& key) { return {&key, nullptr, true}; }
    static constexpr When filled(const settings::TextKey& key) { return {&key, nullptr, false}; }
    static constexpr When on(const settings::SwitchKey& key) { return {nullptr, &key, true}; }
    static constexpr When not_on(const settings::SwitchKey& key) { return {nullptr, &key, false}; }

    bool holds(const settings::Store& settings) const {
        if (text_) return read(settings, *text_).empty() == wanted_;
        if (switch_) return is_on(settings, *switch_) == wanted_;
        return wanted_;
    }

    /// The setting that must be empty; nothing for another condition.
    constexpr const settings::TextKey* emptied() const { return wanted_ ? text_ : nullptr; }

private:
    constexpr When(const settings::TextKey* text, const settings::SwitchKey* a_switch, bool wanted)
        : text_(text), switch_(a_switch), wanted_(wanted) {}

    const settings::TextKey* text_;
    const settings::SwitchKey* switch_;
    bool wanted_;
};

/// Rows that take part together.
struct MergeBlock {
    When when;
    std::span<const MergeRow> rows;
};

/// The body merge in its order, in the groups that fail alone.
std::span<const MergeBlock> user_codes();
std::span<const MergeBlock> signature_fields();
std::span<const MergeBlock> converted_breaks();
std::span<const MergeBlock> background_colour();

/// The signature-file merge in its order; the user codes follow it.
std::span<const MergeBlock> signature_file_fields();

/// A row that puts a setting's value in; for the tables.
constexpr MergeRow value(TextView search, const settings::TextKey& key) {
    return {search, {}, &key, key.default_value};
}

} // namespace ornavel::compose
