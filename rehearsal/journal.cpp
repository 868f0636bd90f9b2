#include "rehearsal/journal.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

constexpr std::size_t longest_value = 400;

bool uses_host(Deed deed) { return deed == Deed::get || deed == Deed::put || deed == Deed::call; }

} // namespace

void Journal::note(Deed deed, Text what, TextView value, bool found) {
    entries_.push_back({act_, deed, std::move(what), shortened(value), found});
}

Text Journal::shortened(TextView value) {
    Text shown(value.substr(0, longest_value));
    if (value.size() > longest_value) shown += u"…";
    return shown;
}

void Journal::fail(std::size_t place, Text words) {
    entries_[place].failed = true;
    entries_[place].failure = std::move(words);
}

std::size_t Journal::host_uses(std::size_t act) const {
    const auto uses = std::count_if(entries_.begin(), entries_.end(), [&](const JournalEntry& entry) {
        return entry.act == act && uses_host(entry.deed);
    });
    return static_cast<std::size_t>(uses);
}

} // namespace ornavel::rehearsal
