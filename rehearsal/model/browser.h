#pragma once

#include "rehearsal/model/node.h"

namespace ornavel::rehearsal {

/// The separate web browser: each use is written down for the outcome.
struct BrowserNode final : Node {
    const Class& what() const override;
    bool address_bar = true, full_screen = false, status_bar = true, theater_mode = false, visible = false;
};

} // namespace ornavel::rehearsal
