#pragma once

#include "base/errors.h"

#include <vector>

namespace ornavel::rehearsal {

enum class Deed {
    get,
    put,
    call,
    event,
    gate, ///< that a send reached; the value is its verdict: "passed", "off" or "left"
    trap, ///< that was sprung; the value is how the log names it
    read_setting,
    save_setting,
    read_file,
    write_file,
    delete_file,
    launch,
    window,
    string ///< a numbered text that was looked up
};

/// One thing that the add-in did, or an event that it was told.
struct JournalEntry {
    std::size_t act; ///< the index of the act that was playing
    Deed deed;
    Text what;         ///< "MailItem.HTMLBody", a section and key, a path, a program, a window's title
    Text value{};      ///< what went in or came out, shortened
    bool found = true; ///< false where what was read isn't there
    bool failed = false;
    Text failure{}; ///< the words of a use that failed; it may have none
};

/// Everything that happened in a rehearsal, in order.
class Journal {
public:
    void begin_act(std::size_t act) { act_ = act; }
    void note(Deed deed, Text what, TextView value = {}, bool found = true);
    /// What a use gave, for one that was noted before.
    void tell_value(std::size_t place, TextView value) { entries_[place].value = shortened(value); }
    /// Notes a use, makes it, and gives back what it gives. Where it throws, that is noted too.
    template <class Use>
    decltype(auto) note_use(Deed deed, Text what, TextView value, Use&& use) {
        note(deed, std::move(what), value);
        const std::size_t place = entries_.size() - 1;
        try {
            return use();
        } catch (...) {
            fail(place, current_description());
            throw;
        }
    }
    const std::vector<JournalEntry>& entries() const { return entries_; }
    /// Keeps nothing of what has happened.
    void forget() { entries_ = {}; }
    /// How many uses of the mail client's members an act made.
    std::size_t host_uses(std::size_t act) const;

private:
    static Text shortened(TextView value);
    void fail(std::size_t place, Text words);

    std::size_t act_ = 0;
    std::vector<JournalEntry> entries_;
};

} // namespace ornavel::rehearsal
