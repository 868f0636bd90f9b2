#pragma once

#include "rehearsal/native/memory_disk.h"
#include "rehearsal/scenario.h"

namespace ornavel::equality {

/// The command line that composes the scenario's one send, with its settings and files on the disk; or why
/// there is none.
struct Expressed {
    std::vector<std::string> words;
    std::string obstacle;
};

Expressed express(const rehearsal::Scenario& scenario, rehearsal::MemoryDisk& disk);

} // namespace ornavel::equality
