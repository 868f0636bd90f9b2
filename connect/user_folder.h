#pragma once

#include "connect/session.h"

namespace ornavel::connect {

/// Whether a folder is the user's own or lies in it. One that leads out of it again does not.
bool is_in_user_folder(TextView folder, TextView own);

/// Makes the working folder, the preview's folder and the error log's where the settings put them into the
/// user's own folder and they are missing. Any other folder is the administrator's to make. Never throws.
void make_user_folders(Session& session) noexcept;

} // namespace ornavel::connect
