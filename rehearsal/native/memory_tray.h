#pragma once

#include "forms/tray.h"
#include "rehearsal/tray_record.h"

namespace ornavel::rehearsal {

/// A notification area in memory, and the user's hand at its icon.
class MemoryTray final : public forms::Tray {
public:
    void show(TextView tip, std::function<void(int message)> handler) override;
    void hide() override;
    std::optional<std::size_t> pop_up(std::span<const forms::MenuEntry> entries) override;

    /// The icon gets a window message; in a menu that opens the user makes the choice. Gives it back, with
    /// whether there was such an entry; nothing where no icon is shown.
    std::optional<MenuChoice> send(int message, MenuChoice choice);
    const TrayRecord& record() const { return record_; }

private:
    TrayRecord record_;
    std::function<void(int)> handler_;
    MenuChoice choice_;
};

} // namespace ornavel::rehearsal
