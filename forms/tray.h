#pragma once

#include "base/text.h"

#include <functional>
#include <optional>
#include <span>

namespace ornavel::forms {

/// One entry of a pop-up menu; without a caption it is the line between two groups. In the caption a "&"
/// marks the access key.
struct MenuEntry {
    Text caption{};
    bool ticked = false;
};

/// The notification area of the taskbar, with the add-in's one icon in it.
class Tray {
public:
    virtual ~Tray() = default;
    /// Shows the icon with its tip, now or as soon as there is a taskbar, and until hide. The handler is told
    /// the number of each window message that the icon gets; it never throws.
    virtual void show(TextView tip, std::function<void(int message)> handler) = 0;
    virtual void hide() = 0;
    /// Opens a menu where the pointer is. Gives back the entry that the user chose, counted from 0; nothing
    /// where the user chose none.
    virtual std::optional<std::size_t> pop_up(std::span<const MenuEntry> entries) = 0;
};

} // namespace ornavel::forms
