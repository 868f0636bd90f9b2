#pragma once

#include <string>

namespace ornavel::rehearsal::report {

/// The picture of a BMP file of 32 bits a pixel, from below, as a PNG file. Throws std::runtime_error for any
/// other file.
std::string png_of_bmp(const std::string& bmp);

} // namespace ornavel::rehearsal::report
