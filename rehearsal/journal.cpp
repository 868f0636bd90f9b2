#include "rehearsal/journal.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

constexpr std::size_t longest_value = 80;

bool uses_host(Deed deed) { return deed == Deed::get || deed == Deed::put || deed == Deed::call; }

} // namespace

void Journal::note(Deed deed, Text what, TextView value, bool found) {
    Text shown(value.substr(0, longest_value));
    if (value.size() > longest_value) shown += u"…";
    entries_.push_back({act_, deed, std::move(what), std::move(shown), found});
}

std::size_t Journal::host_uses(std::size_t act) const {
    const auto uses = std::count_if(entries_.begin(), entries_.end(), [&](const JournalEntry& entry) {
        return entry.act == act && uses_host(entry.deed);
    });
    return static_cast<std::size_t>(uses);
}

} // namespace ornavel::rehearsal
