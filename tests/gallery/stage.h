#pragma once

#include "forms/BrevantUser.h"
#include "forms/frmMessage.h"
#include "programs/program.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_object.h"
#include "tests/fakes/recording_reports.h"
#include "win32/machine.h"
#include "win32/system_information.h"
#include "win32/windows_files.h"

#include <functional>

namespace ornavel::gallery {

/// What forms need, with an item and a folder of stationery; each state changes some of it.
struct Stage {
    Stage();

    void set(const settings::Key& key, TextView value) { settings::save(store, key, value); }
    void write(TextView name, std::string_view text) { files.write(folder + Text(name), text); }

    void show_options(std::function<void(forms::Form&)> change = {});
    void show_preview(std::function<void(forms::frmBrowser&)> change = {});
    void show_help();
    void show_prompt(TextView mode);
    /// The administrator's menu, or what this entry of it opens.
    void show_tray(TextView entry = {});
    /// Ornavel Setup, after so many clicks on Next.
    void show_setup(int clicks, std::function<void(forms::Form&)> change = {});
    /// Send to Many with this list pasted into it.
    void show_send_to_many(TextView list);
    /// What a program is given whose windows are shown by this.
    programs::Platform platform(forms::Windows& shown_by);

    Text folder = u"C:\\windows\\temp\\gallery\\";
    win32::WindowsFiles files;
    win32::DesktopWindows windows;
    win32::ShellLauncher launcher;
    win32::WindowsInformation machine;
    settings::MemoryStore store;
    FixedClock clock;
    PreparedObjects objects;
    RecordingReports errors;
    host::Application application;
    compose::StartUpValues start_up;
    std::vector<Text> journal;
    std::shared_ptr<RecordingObject> host_item = std::make_shared<RecordingObject>(journal);
    host::MailItem item{host_item};
    Text language = u"English";
};

} // namespace ornavel::gallery
