#pragma once

#include "base/clock.h"
#include "base/launcher.h"
#include "base/system_information.h"
#include "forms/windows.h"
#include "rehearsal/native/memory_disk.h"
#include "rehearsal/native/memory_registry.h"
#include "rehearsal/native/memory_settings.h"
#include "rehearsal/native/memory_tray.h"
#include "rehearsal/scripted_user.h"

namespace ornavel::rehearsal {

/// A machine in memory: what the native add-in runs on.
class MemoryMachine final : public Machine, Clock, Launcher, SystemInformation, forms::Windows {
public:
    MemoryMachine(const Scenario& scenario, const std::string& source, Failures& failures, Journal& journal);

    void prepare(const Scenario& scenario) override;
    Snapshot snapshot() const override;
    Files& files() override { return disk_; }
    Registry& registry() override { return registry_; }
    void remove_folder(TextView path) override { disk_.remove_folder(path); }
    void hold(TextView path) override { disk_.hold(path); }
    void let_go() override { disk_.let_go(); }
    void change_settings(const SettingsTree& settings) override;
    void set_clock(const LocalTime& time) override { now_ = time; }
    bool tray(const Act& act) override;
    std::optional<Text> prompt(TextView mode) override;
    std::optional<int> run(TextView program, TextView arguments, host::Objects& objects) override;
    std::optional<std::string> complaint() const override { return user_.complaint(); }
    Json launched() const override { return launched_; }
    Json windows() const override { return windows_; }
    Json tray_outcome() const override { return to_json(tray_.record()); }

    MemoryDisk& disk() { return disk_; }

    /// Shows the add-in's loaded page in the Options dialog while play runs, and writes down what it looked
    /// like.
    void show_page(forms::Form& page, const Act& act, const std::function<void()>& play);

    /// The parts that the add-in is given.
    settings::Store& addin_settings() { return rehearsed_settings_; }
    Files& addin_files() { return rehearsed_disk_; }
    const Clock& addin_clock() const { return *this; }
    Launcher& addin_launcher() { return *this; }
    forms::Windows& addin_windows() { return *this; }
    const SystemInformation& addin_machine() const { return *this; }
    forms::Tray& addin_tray() { return tray_; }

private:
    LocalTime now() const override { return now_; }
    void launch(TextView program, TextView arguments, WindowState window) override;
    Progress run_windows_program(TextView name, TextView arguments, WindowState window, int) override {
        launch(name, arguments, window);
        return Progress::ended;
    }
    Answer show(TextView title, TextView text, Buttons buttons) override;
    void show_modal(forms::Form& form) override;
    std::optional<Text> ask_for_path(const forms::PathQuestion& question) override;
    void show_input_box(forms::Form& form);
    OperatingSystem operating_system() const override;
    int processor_type() const override { return computer_.cpu; }
    Memory memory() const override;
    Text computer_name() const override { return computer_.name; }
    Text user_name() const override { return computer_.user; }
    Text registered_owner() const override { return value_of_system(u"RegisteredOwner"); }
    Text registered_organization() const override { return value_of_system(u"RegisteredOrganization"); }
    Text value_of_system(TextView name) const;

    Failures& failures_;
    Journal& journal_;
    ScriptedUser user_;
    Computer computer_;
    LocalTime now_;
    MemorySettings settings_;
    RehearsedSettings rehearsed_settings_;
    MemoryDisk disk_;
    RehearsedDisk rehearsed_disk_;
    MemoryRegistry registry_;
    MemoryTray tray_;
    Json launched_ = Json::array(), windows_ = Json::array();
};

} // namespace ornavel::rehearsal
