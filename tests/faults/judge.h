#pragma once

#include "rehearsal/failures.h"
#include "rehearsal/report/story.h"

namespace ornavel::faults {

/// One scenario as it was played, without a fault or with one.
struct Play {
    rehearsal::Json outcome;
    std::vector<rehearsal::report::Send> sends;
};

struct Planted {
    rehearsal::Fault fault;
    rehearsal::Failures::Use use; ///< the one that it struck
    bool is_memory = false;       ///< memory was refused instead, at no particular use
};

/// What must not happen. `blocked`: a send was cancelled although no gate decided so. `half_dressed`: an item
/// lost its text, or carries the stamp without being dressed. `silent`: an error ended the add-in's part of a
/// send and the log has no line of it, or a user's changes could not be written and nobody told them.
/// `half_written`: a program wrote some of its user's changes and not the others.
struct Verdict {
    bool escaped = false, blocked = false, half_dressed = false, leaked = false, silent = false,
         half_written = false;
    bool good() const { return !(escaped || blocked || half_dressed || leaked || silent || half_written); }
};

Verdict judge(const rehearsal::Scenario& scenario, const Play& sound, const Play& faulty,
              const Planted& planted);

/// The same for a play in which the add-in was refused memory. It may be silent: a line in the log takes
/// memory, too.
Verdict judge_without_memory(const rehearsal::Scenario& scenario, const Play& sound, const Play& faulty);

} // namespace ornavel::faults
