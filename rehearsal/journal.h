#pragma once

#include "base/text.h"

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
};

/// Everything that happened in a rehearsal, in order.
class Journal {
public:
    void begin_act(std::size_t act) { act_ = act; }
    void note(Deed deed, Text what, TextView value = {}, bool found = true);
    const std::vector<JournalEntry>& entries() const { return entries_; }
    /// Keeps nothing of what has happened.
    void forget() { entries_ = {}; }
    /// How many uses of the mail client's members an act made.
    std::size_t host_uses(std::size_t act) const;

private:
    std::size_t act_ = 0;
    std::vector<JournalEntry> entries_;
};

} // namespace ornavel::rehearsal
