#pragma once

#include "rehearsal/json.h"

#include <vector>

namespace ornavel::rehearsal {

/// Where two plays of one scenario ended differently: the way to the value, and what either play has there,
/// as one line of JSON that is cut around the first character in which they differ.
struct Difference {
    std::string path, native, dll;
};

/// All of them, in the order of the native outcome. What only the machine decides never counts: times that
/// were measured, dates, and a report's lines about the system.
std::vector<Difference> differences(const Json& native, const Json& dll);

/// "items[0].Subject: native "a", real DLL "b"".
std::string to_line(const Difference& difference);

} // namespace ornavel::rehearsal
