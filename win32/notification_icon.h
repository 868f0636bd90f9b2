#pragma once

#include "forms/tray.h"

#include <windows.h>

namespace ornavel::win32 {

/// The add-in's icon in the notification area of this machine's taskbar. A taskbar that is made anew, as
/// after a crash of the desktop, gets it again.
class NotificationIcon final : public forms::Tray {
public:
    NotificationIcon() = default;
    ~NotificationIcon() override { hide(); }
    NotificationIcon(const NotificationIcon&) = delete;
    NotificationIcon& operator=(const NotificationIcon&) = delete;

    void show(TextView tip, std::function<void(int message)> handler) override;
    void hide() override;
    std::optional<std::size_t> pop_up(std::span<const forms::MenuEntry> entries) override;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM word, LPARAM pointer);
    void put(DWORD what) const;

    HWND window_ = nullptr; ///< unseen; the icon's messages go to it
    Text tip_;
    std::function<void(int)> handler_;
};

} // namespace ornavel::win32
