#pragma once

#include "rehearsal/scenario.h"

#include <filesystem>
#include <functional>

namespace ornavel::rehearsal {

/// A folder of its own that goes with everything in it. An interruption (INT, TERM, HUP) waits for that, and
/// then ends the program.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    std::string operator/(const std::string& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

/// Runs the body in a process of its own; its result is the exit code. Gives the code, or the number of the
/// signal that ended the process, negative. An interruption ends that process, and is Unusable here.
int run_apart(const std::function<int()>& body);

/// What a player in a process of its own left in a file. It ends with 2 where the scenario can't be played,
/// the reason in place of the outcome (Unusable here); one that leaves nothing has crashed, and the outcome's
/// error says so.
Json collect_outcome(int code, const std::string& file, const Scenario& scenario, const std::string& source);

} // namespace ornavel::rehearsal
