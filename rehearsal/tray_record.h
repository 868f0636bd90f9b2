#pragma once

#include "rehearsal/json.h"

#include <vector>

namespace ornavel::rehearsal {

/// What happened to the add-in's icon in the notification area.
struct TrayRecord {
    bool shown = false;
    Text tip;
    int times_shown = 0, times_removed = 0;
    std::vector<Text> menu; ///< as it was when it was last open; a line between two groups is "-"

    void show(TextView with_tip);
    void remove();
};

Json to_json(const TrayRecord& tray);

/// What the user does with the menu that opens: chooses the entry with this caption, or none.
struct MenuChoice {
    std::optional<Text> caption;
    bool was_there = false;

    /// The entry's place among the captions, counted from 0.
    std::optional<std::size_t> find(const std::vector<Text>& captions);
};

} // namespace ornavel::rehearsal
