#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// The failures that a scenario asks for. Counts the uses of each entry's subject over the whole rehearsal.
class Failures {
public:
    explicit Failures(std::vector<Failing> entries);

    /// Counts one use; throws Failure (host::Error for a member) with the entry's words when this use fails.
    void use(Failing::Kind kind, TextView subject);

private:
    struct Counted {
        Failing entry;
        int uses = 0;
    };
    std::vector<Counted> entries_;
};

} // namespace ornavel::rehearsal
