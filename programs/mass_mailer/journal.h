#pragma once

#include "base/clock.h"
#include "base/errors.h"
#include "base/files.h"

#include <unordered_map>
#include <unordered_set>

namespace ornavel::mass_mailer {

/// What a list and a message have that no other list or message has, in 16 digits.
Text hash_of(TextView subject, TextView page, TextView list, std::size_t address_column);

/// Where a list's journals may stand: beside it, else among the user's application data. Full paths without
/// extension, in the order in which they are tried.
using JournalStems = std::vector<Text>;
JournalStems journal_stems(TextView list_path, TextView user_folder);

/// What was sent to whom, on the disk, so that a run that ended in the middle can be gone on with: a line
/// before each message is sent and one after it. A line that the program's end cut off counts for nothing.
class Journal {
public:
    enum class State {
        open,    ///< has no message
        unknown, ///< was about to get one when the program ended, or nobody knows whether it left
        sent
    };

    /// Looks for the journal of the list and message with this hash. Writes nothing. Throws Failure where
    /// there is a journal that can't be read.
    Journal(Files& files, const JournalStems& stems, Text hash);

    /// Whether an earlier run wrote it; path() is empty where none did.
    bool is_begun() const { return !path_.empty(); }
    const Text& path() const { return path_; }
    State state_of(TextView address) const;
    /// The journals of other lists or messages that stand in its place and in which something was begun.
    const std::vector<Text>& others() const { return others_; }
    /// Whether one of them says that this address got a message.
    bool is_sent_by_others(TextView address) const;

    /// Makes the journal in the first place that can be written, or makes it fit to go on with. Throws
    /// Failure; nothing may be sent then.
    void begin();

    // Each returns once the line is on the disk, and throws Failure where that can't be told. What came of a
    // message is then written in front of the next line.
    void note_sending(TextView address);
    void note_sent(TextView address, const LocalTime& time);
    /// The mail client said that it did not take the message.
    void note_refused(TextView address, const LocalTime& time);

private:
    struct Notes {
        int unanswered = 0;
        bool sent = false;
    };
    void look_at(const Text& path);
    void take_notes(TextView lines);
    void take_others_notes(TextView lines);
    Text free_path(const Text& stem) const;
    void write_line(Text line, bool is_owed);

    Files& files_;
    JournalStems stems_;
    Text header_, path_;
    std::vector<Text> others_;
    std::unordered_map<Text, Notes> notes_; ///< by address key
    std::unordered_set<Text> sent_by_others_;
    bool is_cut_off_ = false;
    Text owed_; ///< lines that could not be written
};

} // namespace ornavel::mass_mailer
