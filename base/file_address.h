#pragma once

#include "base/text.h"

namespace ornavel {

/// Whether a path begins with a drive's letter and its colon.
bool names_drive(TextView path);

/// The path that the address of a picture or a page means, as HTML writes addresses: without escapes such as
/// "%20" and "&amp;", with backslashes, and without "file:" and the slashes behind it. A share's path begins
/// with two backslashes.
Text path_of_address(TextView address);

} // namespace ornavel
