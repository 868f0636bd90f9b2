#pragma once

#include "base/text.h"

#include <string>
#include <vector>

namespace ornavel::rehearsal::report {

/// The addresses of an HTML text's pictures, as it spells them, each once.
std::vector<std::string> pictures_in(const std::string& html);

/// The full Windows path behind a picture's address; empty for one that lies on no disk.
Text path_of_picture(const std::string& address);

} // namespace ornavel::rehearsal::report
