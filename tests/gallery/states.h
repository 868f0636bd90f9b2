#pragma once

#include "tests/gallery/stage.h"

#include <span>

namespace ornavel::gallery {

/// One form in one state, by the name of its picture.
struct State {
    TextView name;
    void (*show)(Stage&);
    TextView open_list{}; ///< the combo box whose list is open
};

std::span<const State> states();

} // namespace ornavel::gallery
