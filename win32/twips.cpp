#include "win32/twips.h"

namespace ornavel::win32 {
namespace {

constexpr int twips_per_inch = 1440;

} // namespace

Scale Scale::of_screen() {
    const HDC screen = GetDC(nullptr);
    const Scale scale(GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
    return scale;
}

RECT Scale::pixels(const forms::Bounds& place) const {
    const LONG left = MulDiv(place.left, x_, twips_per_inch);
    const LONG top = MulDiv(place.top, y_, twips_per_inch);
    return {left, top, left + MulDiv(place.width, x_, twips_per_inch),
            top + MulDiv(place.height, y_, twips_per_inch)};
}

forms::Bounds Scale::twips(const RECT& pixels) const {
    return {MulDiv(pixels.left, twips_per_inch, x_), MulDiv(pixels.top, twips_per_inch, y_),
            MulDiv(pixels.right - pixels.left, twips_per_inch, x_),
            MulDiv(pixels.bottom - pixels.top, twips_per_inch, y_)};
}

} // namespace ornavel::win32
