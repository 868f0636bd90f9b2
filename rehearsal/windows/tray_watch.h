#pragma once

#include "rehearsal/tray_record.h"

#include <windows.h>

#include <shellapi.h>

namespace ornavel::rehearsal {

/// Writes down what one module does with its icon in the notification area, and sends the icon the messages
/// that a user's hand causes. There is one at a time.
class TrayWatch {
public:
    TrayWatch();
    ~TrayWatch();
    TrayWatch(const TrayWatch&) = delete;
    TrayWatch& operator=(const TrayWatch&) = delete;

    void watch(HMODULE module);
    void note(DWORD what, const NOTIFYICONDATAA& icon);
    /// Whether there is an icon; returns when it has done its work.
    bool send(int message) const;

    const NOTIFYICONDATAA& icon() const { return icon_; }

    TrayRecord record;

private:
    NOTIFYICONDATAA icon_{};
};

} // namespace ornavel::rehearsal
