#include "rehearsal/tray_record.h"

#include <algorithm>

namespace ornavel::rehearsal {

void TrayRecord::show(TextView with_tip) {
    shown = true;
    tip = with_tip;
    ++times_shown;
}

void TrayRecord::remove() {
    shown = false;
    tip.clear();
    ++times_removed;
}

Json to_json(const TrayRecord& tray) {
    Json menu = Json::array();
    for (const Text& entry : tray.menu) menu.push_back(to_json(entry));
    return {{"shown", tray.shown},
            {"tip", to_json(tray.tip)},
            {"times shown", tray.times_shown},
            {"times removed", tray.times_removed},
            {"menu", std::move(menu)}};
}

std::optional<std::size_t> MenuChoice::find(const std::vector<Text>& captions) {
    if (!caption) return {};
    const auto found = std::ranges::find(captions, *caption);
    if (found == captions.end()) return {};
    was_there = true;
    return static_cast<std::size_t>(found - captions.begin());
}

} // namespace ornavel::rehearsal
