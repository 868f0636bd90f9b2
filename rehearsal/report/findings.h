#pragma once

#include "rehearsal/report/story.h"

namespace ornavel::rehearsal::report {

/// What a send did, of one kind, in order.
std::vector<const JournalEntry*> deeds_of(const Story& story, const Send& send, Deed deed);

/// The value that the send read last of a setting, "Section / Key"; empty where it read none.
Text value_read(const Story& story, const Send& send, TextView setting);

/// The names of the files that were poured into the message; empty where none was read.
std::string template_read(const Story& story, const Send& send);
std::string signature_read(const Story& story, const Send& send);

/// What to look at in a send, a sentence each: errors, a chosen template or signature that is not there, text
/// of the user's that the result lacks, fields that were left over, pictures that are not there, windows that
/// nobody answered.
std::vector<std::string> findings_in(const Story& story, const Send& send);

} // namespace ornavel::rehearsal::report
