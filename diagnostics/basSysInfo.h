#pragma once

#include "base/system_information.h"

namespace ornavel::diagnostics {

/// "Windows NT 5.1 (Build 2600)"; a platform of another number has no name in front.
Text operating_system_line(const OperatingSystem& system);

/// "CPU: Intel Pentium"; a type that is not known is "(unknown)".
Text processor_line(int processor_type);

/// Whole kilobytes in groups of three digits, and "K": "2,097,152K" for 2147483648 bytes.
Text kilobytes(std::uint64_t bytes);

/// Operating system, processor, and four lines of memory. Throws what the platform throws.
std::vector<Text> system_lines(const SystemInformation& machine);

} // namespace ornavel::diagnostics
