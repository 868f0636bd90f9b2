#pragma once

namespace ornavel::connect {

struct Session;

/// The administrator's icon in the notification area comes with the tray menu; until then nothing is shown.
inline void show_tray_icon(Session&) noexcept {}
inline void remove_tray_icon(Session&) noexcept {}

} // namespace ornavel::connect
