#pragma once

#include "connect/platform.h"
#include "forms/string_table.h"
#include "tests/rehearsal/stage.h"

namespace ornavel::connect {

/// What stands in for a part of the stage's machine; null for the stage's own.
struct StandIns {
    settings::Store* settings = nullptr;
    const Clock* clock = nullptr;
    forms::Windows* windows = nullptr;
};

/// The stage's machine as the add-in is given it, with the add-in's folder "C:\app".
inline Platform platform_of(rehearsal::Stage& stage, StandIns instead = {}) {
    auto& machine = stage.machine;
    return {.settings = instead.settings ? *instead.settings : machine.addin_settings(),
            .files = machine.addin_files(),
            .clock = instead.clock ? *instead.clock : machine.addin_clock(),
            .launcher = machine.addin_launcher(),
            .objects = stage.client,
            .windows = instead.windows ? *instead.windows : machine.addin_windows(),
            .strings = forms::built_in_strings(),
            .machine = machine.addin_machine(),
            .addin_folder = u"C:\\app"};
}

} // namespace ornavel::connect
