#pragma once

#include <cstddef>

namespace ornavel::faults {

/// While it lives, memory is refused to the add-in's code. Only one lives at a time.
class ScarceMemory {
public:
    enum class Lasts { once, from_then_on };

    /// first_refused: the allocation that is refused, counted from 1 over those of the add-in; 0 counts only.
    explicit ScarceMemory(std::size_t first_refused = 0, Lasts lasts = Lasts::once);
    ~ScarceMemory();
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;

    /// How often the add-in asked for memory so far.
    std::size_t asked() const;
};

} // namespace ornavel::faults
