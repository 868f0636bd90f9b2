#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// A scenario of a file, and what messages call it.
struct Loaded {
    std::string file, source;
    Json json; ///< whole: with the world of its suite
    Scenario scenario;

    bool is_of_suite() const { return source != file; }
};

/// The scenarios of the files, in order. Throws Unusable for the first one that the binding can't play.
std::vector<Loaded> load(const std::vector<std::string>& files, Binding binding);

} // namespace ornavel::rehearsal
