#pragma once

#include "rehearsal/journal.h"
#include "rehearsal/scenario.h"

#include <map>

namespace ornavel::rehearsal::report {

struct GateVisit {
    std::string name;
    bool passed;
};

/// One item on its way out.
struct Send {
    std::size_t act, item;
    bool cancelled;
    double milliseconds;
    std::size_t calls;            ///< uses of the mail client's members
    std::vector<GateVisit> gates; ///< in the order in which the send reached them
};

/// Where a page comes from.
struct Origin {
    std::string date, commit, version; ///< today's; of the checkout, empty where unknown; of the add-in
};

/// A scenario that was played: what it gave, what came out, and how.
struct Story {
    Scenario scenario;
    Json outcome;                         ///< with the real DLL where it was played so, else native
    bool with_dll = false;                ///< which of the two
    std::vector<std::string> differences; ///< between the two outcomes, a line each
    std::vector<std::string> mismatches;  ///< with what the scenario expects
    std::vector<JournalEntry> journal;    ///< of the native play
    std::vector<Send> sends;
    std::map<std::size_t, std::string>
        pictures{}; ///< of its forms, BMP files by their place among the windows
};

} // namespace ornavel::rehearsal::report
