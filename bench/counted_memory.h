#pragma once

#include <cstddef>

namespace ornavel::bench {

/// Counts the bytes that this program and automation take from the heap while it lives. One at a time.
class CountedMemory {
public:
    CountedMemory();
    ~CountedMemory();
    CountedMemory(const CountedMemory&) = delete;
    CountedMemory& operator=(const CountedMemory&) = delete;

    std::size_t taken() const;
};

} // namespace ornavel::bench
