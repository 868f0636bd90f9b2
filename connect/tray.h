#pragma once

namespace ornavel::connect {

struct Session;

/// The administrator's icon in the notification area; where there is no such area, nothing.
void show_tray_icon(Session& session) noexcept;
void remove_tray_icon(Session& session) noexcept;

} // namespace ornavel::connect
