#include "forms/screen_place.h"

#include <algorithm>
#include <cstdint>

namespace ornavel::forms {
namespace {

// A stored place may hold any number: sums and products are taken in a wider type.
using Wide = std::int64_t;

struct Span {
    Wide begin, end;
};

Span across(const Bounds& place) { return {place.left, Wide{place.left} + place.width}; }
Span down(const Bounds& place) { return {place.top, Wide{place.top} + place.height}; }

bool holds(const Span& outer, Wide point) { return outer.begin <= point && point < outer.end; }

bool is_on_a_screen(Wide x, Wide y, std::span<const Bounds> screens) {
    return std::ranges::any_of(
        screens, [&](const Bounds& screen) { return holds(across(screen), x) && holds(down(screen), y); });
}

bool is_whole(const Bounds& window, std::span<const Bounds> screens) {
    const Span x = across(window), y = down(window);
    for (const Wide corner_x : {x.begin, x.end - 1})
        for (const Wide corner_y : {y.begin, y.end - 1})
            if (!is_on_a_screen(corner_x, corner_y, screens)) return false;
    return true;
}

/// How much two stretches share; where they share nothing, how far they are apart, negative.
Wide shared(const Span& one, const Span& other) {
    return std::min(one.end, other.end) - std::max(one.begin, other.begin);
}

/// The screen that shows most of the window is nearest; of those that show none of it, the one with the
/// shortest way.
Wide distance(const Bounds& window, const Bounds& screen) {
    const Wide x = shared(across(window), across(screen)), y = shared(down(window), down(screen));
    if (x > 0 && y > 0) return -x * y;
    return std::max(-x, Wide{0}) + std::max(-y, Wide{0});
}

int inside(int place, int size, int screen_begin, int screen_size) {
    const Wide last = Wide{screen_begin} + screen_size - size;
    return static_cast<int>(std::clamp(Wide{place}, Wide{screen_begin}, std::max(Wide{screen_begin}, last)));
}

} // namespace

Bounds centred(Bounds window, const Bounds& screen) {
    constexpr int twips_per_pixel = 15;
    const auto middle = [](int room) { return room / 2 / twips_per_pixel * twips_per_pixel; };
    window.left = screen.left + middle(screen.width - window.width);
    window.top = screen.top + middle(screen.height - window.height);
    return window;
}

Bounds reachable(const Bounds& window, std::span<const Bounds> screens) {
    if (screens.empty() || is_whole(window, screens)) return window;
    const Bounds& screen =
        *std::ranges::min_element(screens, {}, [&](const Bounds& each) { return distance(window, each); });
    Bounds within = window;
    within.width = std::min(window.width, screen.width);
    within.height = std::min(window.height, screen.height);
    within.left = inside(window.left, within.width, screen.left, screen.width);
    within.top = inside(window.top, within.height, screen.top, screen.height);
    return within;
}

void place_on_screen(Form& form, const Bounds& main_screen, std::span<const Bounds> screens) {
    form.screen = main_screen;
    Bounds& place = form.properties.place;
    if (form.centred)
        place = centred(place, main_screen);
    else if (const Bounds within = reachable(place, screens); within != place)
        form.take_place(within);
}

} // namespace ornavel::forms
