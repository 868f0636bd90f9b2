#include "rehearsal/native/memory_tray.h"

#include "forms/control.h"
#include "rehearsal/turn.h"

namespace ornavel::rehearsal {

void MemoryTray::show(TextView tip, std::function<void(int message)> handler) {
    const MachinesTurn turn;
    record_.show(tip);
    handler_ = std::move(handler);
}

void MemoryTray::hide() {
    const MachinesTurn turn;
    record_.remove();
    handler_ = {};
}

std::optional<std::size_t> MemoryTray::pop_up(std::span<const forms::MenuEntry> entries) {
    const MachinesTurn turn;
    record_.menu.clear();
    for (const auto& entry : entries)
        record_.menu.push_back(
            entry.caption.empty()
                ? u"-"
                : forms::readable_caption({.kind = forms::ControlKind::menu, .caption = entry.caption}));
    return choice_.find(record_.menu);
}

std::optional<MenuChoice> MemoryTray::send(int message, MenuChoice choice) {
    if (!record_.shown) return {};
    choice_ = std::move(choice);
    const auto handler = handler_; // the icon may go while it is at work
    {
        const AddInsTurn addins;
        handler(message);
    }
    return choice_;
}

} // namespace ornavel::rehearsal
