#pragma once

#include "host/value.h"
#include "rehearsal/windows/disk_world.h"
#include "rehearsal/windows/launch_recorder.h"
#include "rehearsal/windows/registry_world.h"
#include "rehearsal/windows/screen_user.h"
#include "rehearsal/windows/tray_watch.h"
#include "win32/handle.h"
#include "win32/windows_files.h"

namespace ornavel::rehearsal {

/// The machine that this program runs on: the registry, drive C and the screen of a Wine prefix. Its end
/// leaves it as it was.
class WindowsMachine final : public Machine {
public:
    WindowsMachine(const Scenario& scenario, const std::string& source);
    ~WindowsMachine() override;

    void prepare(const Scenario& scenario) override;
    Snapshot snapshot() const override;
    Files& files() override { return files_; }
    Registry& registry() override { return registry_; }
    void remove_folder(TextView path) override { disk_.remove_folder(path); }
    void hold(TextView path) override;
    void let_go() override { held_.clear(); }
    void change_settings(const SettingsTree& settings) override;
    void set_clock(const LocalTime&) override { throw Unusable("clock: native only"); }
    bool tray(const Act& act) override;
    std::optional<Text> prompt(TextView) override { throw Unusable("prompt: native only"); }
    std::optional<int> run(TextView program, TextView arguments, host::Objects& objects) override;
    std::optional<std::string> complaint() const override { return user_.complaint(); }
    Json launched() const override { return launches_.launched(); }
    Json windows() const override { return screen_.windows(); }
    void keep_pictures(TextView path) { screen_.keep_pictures(path); }
    Json tray_outcome() const override { return to_json(tray_.record); }

    /// Keeps nothing of what was started and shown so far.
    void forget() {
        launches_.forget();
        screen_.forget();
    }

    /// Does what the user does in the Options dialog with the add-in's page.
    void show_page(const host::ObjectPtr& page, const Act& act);

    /// All that can be done when the add-in takes the process along.
    void put_back_registry() { registry_.put_back(); }

    /// What this module starts, and its icon, are recorded from now on.
    void watch(HMODULE module) {
        launches_.watch(module);
        tray_.watch(module);
    }

private:
    Computer computer_;
    ScriptedUser user_;
    DiskWorld disk_;
    RegistryWorld registry_;
    win32::WindowsFiles files_;
    std::vector<win32::Handle> held_;
    LaunchRecorder launches_;
    TrayWatch tray_;
    ScreenUser screen_;
};

} // namespace ornavel::rehearsal
