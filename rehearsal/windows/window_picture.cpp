#include "rehearsal/windows/window_picture.h"

#include "win32/windows_files.h"

#include <cstring>

namespace ornavel::rehearsal {
namespace {

/// The screen's pixels, from below, 32 bits each.
std::string pixels_of(const RECT& on_screen, const BITMAPINFOHEADER& header) {
    std::string pixels(header.biSizeImage, '\0');
    const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, header.biWidth, header.biHeight);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, header.biWidth, header.biHeight, screen, on_screen.left, on_screen.top, SRCCOPY);
    SelectObject(memory, before);
    BITMAPINFO information{};
    information.bmiHeader = header;
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(header.biHeight), pixels.data(), &information,
              DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

template <class Header>
std::string bytes_of(const Header& header) {
    std::string bytes(sizeof header, '\0');
    std::memcpy(bytes.data(), &header, sizeof header);
    return bytes;
}

} // namespace

void write_picture(const RECT& on_screen, TextView path) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = on_screen.right - on_screen.left;
    header.biHeight = on_screen.bottom - on_screen.top;
    header.biPlanes = 1;
    header.biBitCount = 32;
    header.biSizeImage = static_cast<DWORD>(header.biWidth * header.biHeight * 4);
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof file + sizeof header;
    file.bfSize = file.bfOffBits + header.biSizeImage;
    win32::WindowsFiles().write(path, bytes_of(file) + bytes_of(header) + pixels_of(on_screen, header));
}

} // namespace ornavel::rehearsal
