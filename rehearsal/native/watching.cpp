#include "rehearsal/native/watching.h"

#include "rehearsal/turn.h"

namespace ornavel::rehearsal {

TextView name_of(connect::Verdict verdict) {
    if (verdict == connect::Verdict::next) return u"passed";
    return verdict == connect::Verdict::off ? u"off" : u"left";
}

Text as_logged(const TrapName& trap) { return Text(trap.sub_function) + u", " + Text(trap.section); }

Text name_of(const TrapName& trap) { return trap.place.empty() ? as_logged(trap) : Text(trap.place); }

std::optional<Text> WatchedStrings::find(int id) const {
    const MachinesTurn turn;
    auto text = forms::built_in_strings().find(id);
    journal_.note(Deed::string, to_text(id), text.value_or(Text()), text.has_value());
    return text;
}

} // namespace ornavel::rehearsal
