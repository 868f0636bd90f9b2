#pragma once

#include "connect/session.h"

namespace ornavel::connect {

/// Makes the working folder, the preview's folder and the error log's where the settings put them into the
/// user's own folder and they are missing. Any other folder is the administrator's to make. Never throws.
void make_user_folders(Session& session) noexcept;

} // namespace ornavel::connect
