#include "settings/changes.h"

#include "base/errors.h"

namespace ornavel::settings {
namespace {

bool write(Store& store, const Change& change) noexcept {
    const auto& [key, value, has_variables] = change;
    if (!value) return store.remove(key.section, key.name);
    return has_variables ? store.save_with_variables(key.section, key.name, *value)
                         : store.save(key.section, key.name, *value);
}

/// What fails once, as while another program holds the key, must not leave half of the changes.
bool put_back(Store& store, const Change& before) noexcept {
    return write(store, before) || write(store, before);
}

/// The values that stand there now, in the order of the changes.
std::vector<Change> as_they_are(const Store& store, const std::vector<Change>& changes) {
    std::vector<Change> before;
    before.reserve(changes.size());
    for (const Change& change : changes) {
        const auto stored = store.find_stored(change.key.section, change.key.name);
        if (stored)
            before.push_back({change.key, stored->text, stored->has_variables});
        else
            before.push_back({change.key, std::nullopt});
    }
    return before;
}

} // namespace

std::optional<Unwritten> write_changes(Store& store, const std::vector<Change>& changes) noexcept {
    if (changes.empty()) return {};
    Unwritten unwritten{&changes.front().key, {}};
    std::vector<Change> before;
    // Without memory to put everything back, and to tell what could not be, nothing is begun.
    const auto prepare = [&] {
        before = as_they_are(store, changes);
        unwritten.changed.reserve(changes.size());
    };
    if (!attempt(prepare)) return unwritten;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        if (write(store, changes[i])) continue;
        unwritten.refused = &changes[i].key;
        for (std::size_t written = 0; written < i; ++written)
            if (!put_back(store, before[written])) unwritten.changed.push_back(&changes[written].key);
        return unwritten;
    }
    return {};
}

} // namespace ornavel::settings
