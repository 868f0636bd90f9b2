#pragma once

#include "bench/harness.h"

namespace ornavel::bench {

inline constexpr std::size_t kilobyte = 1000, megabyte = 1000 * kilobyte;

using Work = std::function<void(Text&)>;

/// One run of the work on a body as the composer hands it on. The body outlives it.
Run working(const Text& body, const Work& work);

/// How many times longer the work takes than one warm memcpy of the same body, in turns with it.
double cost(const Text& body, const Work& work, int rounds);

/// How many times longer the work takes on ten times the input.
double growth(const Text& small, const Text& large, const Work& work, int rounds);

/// The rows of one kind of work: its cost at 10 MB, and how it grows from 1 MB.
void print_costs(const std::string& what, const std::function<Text(std::size_t)>& make, const Work& work,
                 double most_copies, int rounds = 9);

} // namespace ornavel::bench
