#pragma once

#include "base/text.h"

#include <functional>
#include <span>

namespace ornavel::bench {

// Ratios are only as good as the moment they are taken in: contenders run in turns, in one process, and each
// figure is the median of its turns. A library that measures one contender after the other can't do that, and
// it is all we need.

/// One run of a contender; gives back its seconds, without what it had to prepare.
using Run = std::function<double()>;

/// Seconds of the processor that the body and the processes it ran took: what else a busy machine does
/// doesn't count.
double seconds(const std::function<void()>& body);

/// The median seconds of each contender over that many rounds, in which they take turns.
std::vector<double> medians(std::span<const Run> contenders, int rounds);
/// The same with each contender's fastest turn: what the work takes when nothing else is in its way.
std::vector<double> fastest(std::span<const Run> contenders, int rounds);

/// The measure of everything too short to be set against a copy of a body: hashing 10,000 bytes, one by one.
/// It takes a machine about as much longer as anything else does.
double hashing();

/// As long as one of these lives, freed memory stays with the process. Growth is measured so: a fresh large
/// block costs the system far more for each byte than a small one that is used again, and that is not the
/// work's doing.
class KeptMemory {
public:
    KeptMemory();
    ~KeptMemory();
    KeptMemory(const KeptMemory&) = delete;
    KeptMemory& operator=(const KeptMemory&) = delete;
};

/// Bytes on the heap now, and the most there were since the last reset.
std::size_t heap_bytes();
std::size_t heap_peak();
void reset_heap_peak();

/// Prints a row: what, the measured figure, the goal, and whether it is met. A goal of 0 is no goal.
void print_row(const char* what, double figure, const char* unit, double goal, bool at_least = false);
/// How many rows fell short.
int rows_short();

} // namespace ornavel::bench
