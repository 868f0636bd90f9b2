#pragma once

#include "base/clock.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/launcher.h"
#include "base/system_information.h"
#include "connect/verdict.h"
#include "forms/string_table.h"
#include "forms/tray.h"
#include "forms/windows.h"
#include "host/object.h"
#include "settings/store.h"

#include <functional>
#include <memory>

namespace ornavel::connect {

/// The machine that the add-in runs on. All of it outlives the add-in.
struct Platform {
    settings::Store& settings;
    Files& files;
    const Clock& clock;
    Launcher& launcher;
    host::Objects& objects;
    forms::Windows& windows;
    const forms::StringTable& strings;
    const SystemInformation& machine;
    Text addin_folder; ///< the folder of Ornavel.dll, without a backslash at its end
    /// Where Windows has the data of the user's programs, without a backslash at its end; empty where it
    /// doesn't tell.
    Text application_data = {};
    /// The folder among the user's application data where folders may be made; empty where none is known.
    Text user_folder = {};
    /// Keeps the add-in and its machine for as long as the result lives: the mail client may let go of them
    /// in the middle of an event, while a window waits for the user. Empty where they outlive every event
    /// anyway.
    std::function<std::shared_ptr<void>()> keep = {};
    std::shared_ptr<void> kept() const { return keep ? keep() : nullptr; }
    /// Told each gate that a send reaches with what it answered, and each trap that is sprung; empty where
    /// nobody watches.
    std::function<void(TextView gate, Verdict)> on_gate = {};
    std::function<void(TrapName)> on_trap = {};
    forms::Tray* tray = nullptr; ///< null where there is no notification area
};

} // namespace ornavel::connect
