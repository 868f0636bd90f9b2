#pragma once

#include "settings/key.h"

#include <span>

namespace ornavel::connect {

/// Why a gate lets a message leave as it was written, in words for people.
struct Reason {
    /// What "{}" in the words stands for.
    enum class Shows { nothing, setting, message_class, folder };

    TextView gate;
    TextView words;   ///< with "{}" where what the gate looked at stands
    TextView without; ///< for those who don't know what it looked at
    Shows shows = Shows::nothing;
    const settings::Key* setting = nullptr; ///< that decided; nothing where no single one did
    bool rich_text = false;                 ///< only of a message in rich text
};

/// In the gates' order; a gate that never lets go of a message is not among them.
std::span<const Reason> reasons();

} // namespace ornavel::connect
