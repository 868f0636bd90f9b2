#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// A scenario and the file that it was read from.
struct Loaded {
    std::string file;
    Json json;
    Scenario scenario;
};

Loaded load(const std::string& file, Binding binding);

} // namespace ornavel::rehearsal
