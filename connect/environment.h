#pragma once

namespace ornavel::connect {

struct Session;

/// Where the preparation of the user's mail client, the host's own signature files and the usage log take
/// their places.
inline void prepare_environment(Session&) noexcept {}
inline void write_signature_files(Session&) noexcept {}
inline void reset_host_signatures(Session&) noexcept {}

} // namespace ornavel::connect
