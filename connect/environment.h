#pragma once

namespace ornavel::connect {

struct Session;

/// At start-up: imports what the installer left, sets the mail client's editor and spelling, and removes its
/// stationery, each where its setting asks for it. Every step ignores its own errors.
void prepare_environment(Session& session) noexcept;

/// Empties the signatures and the stationery that the mail client itself begins messages with: imports a
/// registry file, the one that an administrator left for that, or else one that it writes.
void reset_host_signatures(Session& session) noexcept;

/// The mail client's own signatures, made of those in the folder of signatures.
void write_signature_files(Session& session) noexcept;

/// The editors of older mail clients write two line breaks where the user made one: unless somebody decided,
/// the setting that makes one of them is switched on for these.
void choose_whether_breaks_are_converted(Session& session);

} // namespace ornavel::connect
