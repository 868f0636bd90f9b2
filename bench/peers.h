#pragma once

#include "compose/passes.h"

namespace ornavel::bench {

/// Prints how much longer others take for the same passes on the same body: perl and sed as whole processes,
/// and Abseil's StrReplaceAll where it is built in. Aborts when a result differs.
void print_peers(const Text& body, std::span<const compose::Pass> passes, double our_seconds);

} // namespace ornavel::bench
