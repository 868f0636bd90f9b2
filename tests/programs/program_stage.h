#pragma once

#include "programs/program.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_launcher.h"
#include "tests/fakes/scripted_windows.h"
#include "tests/fakes/stubborn_store.h"

namespace ornavel::programs {

/// The machine of somebody to whom Windows belongs.
class OwnedMachine final : public SystemInformation {
public:
    Text owner, organization;
    OperatingSystem operating_system() const override { return {2, 5, 1, 2600}; }
    int processor_type() const override { return 586; }
    Memory memory() const override { return {}; }
    Text computer_name() const override { return u"DESK-7"; }
    Text user_name() const override { return u"jo"; }
    Text registered_owner() const override { return owner; }
    Text registered_organization() const override { return organization; }
};

/// What a program is given, all of it in memory.
struct ProgramStage {
    StubbornStore store;
    MemoryFiles files;
    FixedClock clock;
    RecordingLauncher launcher;
    PreparedObjects objects;
    ScriptedWindows windows;
    OwnedMachine machine;
    Platform platform{.settings = store,
                      .files = files,
                      .clock = clock,
                      .launcher = launcher,
                      .objects = objects,
                      .windows = windows,
                      .machine = machine,
                      .folder = u"C:\\Ornavel",
                      .user_folder = u"C:\\user",
                      .scratch_folder = u"C:\\scratch"};

    void set(const settings::Key& key, TextView value) { settings::save(store, key, value); }
    /// Nothing where it is absent.
    std::optional<Text> stored(const settings::Key& key) const { return store.find(key.section, key.name); }
};

} // namespace ornavel::programs
