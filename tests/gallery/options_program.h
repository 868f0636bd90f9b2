#pragma once

#include "tests/gallery/stage.h"

namespace ornavel::gallery {

/// The page of the mail client's Options dialog, in a frame of its own: the dialog around it is not ours.
void show_page(Stage& stage);

/// Ornavel Options, after the user has done this.
void show_options_program(Stage& stage, const std::function<void(forms::Form&)>& act = {});

} // namespace ornavel::gallery
