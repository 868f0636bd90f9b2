#pragma once

#include "forms/control.h"

namespace ornavel::forms {

/// Whether two controls cover a part of the window together.
inline bool overlap(const Bounds& one, const Bounds& other) {
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

} // namespace ornavel::forms
