#pragma once

#include "forms/form.h"

namespace ornavel::forms::send_options_design {

// The form's outer heights, in twips: its options folded away, shown, and shown with the company's logo below
// them.
inline constexpr int folded = 3210, shown = 6105, shown_with_logo = 7275;
inline constexpr int width = 7695;

std::vector<Control> controls();

/// Takes out the row of the vCard: its frame shrinks, and what stands below closes ranks.
void close_ranks_without_vcard(Form& form);

} // namespace ornavel::forms::send_options_design
