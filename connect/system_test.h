#pragma once

namespace ornavel::connect {

struct Session;

/// At connection, while the system test is on: asks whether it stays on, and when it does not, whether a
/// system report goes to support.
void offer_system_test(Session& session) noexcept;

} // namespace ornavel::connect
