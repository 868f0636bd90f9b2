#pragma once

#include "forms/form.h"

#include <span>

namespace ornavel::programs::setup_design {

/// A page of the wizard: its frame, and where the keyboard is first.
struct Page {
    TextView frame, first;
};

std::span<const Page> pages();

/// The controls of all pages, each in its frame, and what stands below them.
std::vector<forms::Control> controls();
inline constexpr forms::Size room{9000, 6120};

} // namespace ornavel::programs::setup_design
