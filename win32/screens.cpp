#include "win32/screens.h"

#include "base/errors.h"

namespace ornavel::win32 {
namespace {

struct Search {
    const Scale& scale;
    std::vector<forms::Bounds> found;
};

BOOL CALLBACK note_screen(HMONITOR monitor, HDC, RECT*, LPARAM pointer) {
    auto& search = *reinterpret_cast<Search*>(pointer);
    MONITORINFO information{};
    information.cbSize = sizeof information;
    if (GetMonitorInfoW(monitor, &information))
        attempt([&] { search.found.push_back(search.scale.twips(information.rcWork)); });
    return TRUE;
}

} // namespace

std::vector<forms::Bounds> screens(const Scale& scale) {
    Search search{scale, {}};
    EnumDisplayMonitors(nullptr, nullptr, note_screen, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace ornavel::win32
