#include "rehearsal/report/png.h"

#include <png.h>

#include <cstring>
#include <stdexcept>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::size_t offset_of_width = 18, offset_of_height = 22, offset_of_depth = 28,
                      offset_of_pixels = 54;

std::uint32_t number_at(const std::string& bmp, std::size_t offset) {
    std::uint32_t number = 0;
    std::memcpy(&number, bmp.data() + offset, sizeof number);
    return number;
}

} // namespace

std::string png_of_bmp(const std::string& bmp) {
    png_image picture{};
    picture.version = PNG_IMAGE_VERSION;
    picture.format = PNG_FORMAT_BGR;
    if (bmp.size() < offset_of_pixels || bmp.substr(0, 2) != "BM" ||
        (number_at(bmp, offset_of_depth) & 0xFFFF) != 32)
        throw std::runtime_error("no picture of 32 bits a pixel");
    picture.width = number_at(bmp, offset_of_width);
    picture.height = number_at(bmp, offset_of_height);
    const std::size_t count = std::size_t{picture.width} * picture.height;
    if (count == 0 || bmp.size() < offset_of_pixels + count * 4)
        throw std::runtime_error("a picture cut short");
    std::string pixels; // without the fourth byte, which is no transparency
    for (std::size_t i = 0; i < count; ++i) pixels.append(bmp, offset_of_pixels + i * 4, 3);
    const auto row = static_cast<png_int_32>(picture.width) * -3; // from below
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(picture);
    std::string png(size, '\0');
    if (!png_image_write_to_memory(&picture, png.data(), &size, 0, pixels.data(), row, nullptr))
        throw std::runtime_error(picture.message);
    png.resize(size);
    return png;
}

} // namespace ornavel::rehearsal::report
