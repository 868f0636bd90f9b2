#pragma once

namespace ornavel::connect {

struct Session;

/// Starts the administrator setup program from the add-in's own folder. Returns whether it was started.
bool start_setup_program(Session& session) noexcept;

/// At connection: starts it while the user's e-mail address or web site is missing, and once after
/// installation; never twice in one connection.
void start_setup_program_when_due(Session& session) noexcept;

} // namespace ornavel::connect
