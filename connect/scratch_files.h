#pragma once

#include "connect/session.h"

namespace ornavel::connect {

/// The file that the preview window shows.
Text preview_page(const Session& session);

/// Removes the files that composed messages passed through, so that no mail stays readable on the disk. They
/// stay while an administrator compares files, or when another program was handed the message. Never throws.
void remove_scratch_files(Session& session) noexcept;

} // namespace ornavel::connect
