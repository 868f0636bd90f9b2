// form_gallery FORM...: shows these forms, one after the other, and prints the answers: a mode of the prompt
// dialog, "preview", "tray" with its menu open, or "box N" for what its entry N opens.
#include "base/encoding.h"
#include "diagnostics/error_log.h"
#include "forms/frmBrowser.h"
#include "forms/frmMessage.h"
#include "forms/frmSysTray.h"
#include "settings/store.h"
#include "win32/machine.h"
#include "win32/notification_icon.h"
#include "win32/system_information.h"
#include "win32/windows_files.h"

#include <cstdio>
#include <objbase.h>

namespace {

using namespace ornavel;

/// Says on the console what a form's code trapped.
class Console final : public diagnostics::ErrorReports {
    void take(TextView description, TrapName trap) noexcept override {
        std::printf("%s, %s, %s\n", to_utf8(description).c_str(), to_utf8(trap.sub_function).c_str(),
                    to_utf8(trap.section).c_str());
    }
    std::optional<diagnostics::ErrorReport> log_error(TextView description, TrapName trap) noexcept override {
        take(description, trap);
        return {};
    }
    void mail_report(const diagnostics::ErrorReport&) noexcept override {}
};

/// The real notification area, and a hand at the icon.
class HandAtTray final : public forms::Tray {
public:
    void show(TextView tip, std::function<void(int)> handler) override {
        handler_ = handler;
        icon_.show(tip, std::move(handler));
    }
    void hide() override { icon_.hide(); }
    std::optional<std::size_t> pop_up(std::span<const forms::MenuEntry> entries) override {
        return chosen ? chosen : icon_.pop_up(entries);
    }
    void right_click() const { handler_(517); }

    std::optional<std::size_t> chosen; ///< the menu stays closed, and this is the user's choice

private:
    win32::NotificationIcon icon_;
    std::function<void(int)> handler_;
};

void show_tray(forms::Windows& windows, std::optional<std::size_t> chosen) {
    Console console;
    settings::MemoryStore settings;
    settings::save(settings, settings::admin::WipeoutHTML, settings::on);
    settings::save(settings, settings::admin::SkipInternal, settings::on);
    win32::ShellLauncher launcher;
    win32::WindowsInformation machine;
    const host::Application application;
    HandAtTray tray;
    tray.chosen = chosen;
    forms::frmSysTray form({settings,
                            windows,
                            tray,
                            forms::built_in_strings(),
                            machine,
                            launcher,
                            console,
                            application,
                            u"C:\\Program Files\\Brevant\\Ornavel\\Programs",
                            {}});
    form.form().load();
    tray.right_click();
    form.form().unload();
}

void show_preview(forms::Windows& windows, TextView folder) {
    Console console;
    settings::MemoryStore settings;
    win32::WindowsFiles files;
    settings::save(settings, settings::admin::HTMFilesPath, folder);
    settings::save(settings, settings::admin::PreviewOptionsShow, settings::on);
    forms::PreviewAnswers answers;
    forms::frmBrowser preview({settings, files, windows, console}, answers, Text(folder) + u"\\preview.html",
                              [] { return Text(u"<html><body><h1>Hello</h1>A message.</body></html>"); });
    preview.form().load();
    preview.render();
    windows.show_modal(preview.form());
    std::printf("preview: %s%s\n", answers.send ? "Send" : "closed", answers.send_plain ? " Plain" : "");
}

} // namespace

int main(int count, char** arguments) {
    CoInitialize(nullptr); // for the web browser control
    win32::DesktopWindows windows;
    forms::PromptDialog prompt(windows, forms::built_in_strings());
    for (int i = 1; i < count; ++i) {
        const Text form = from_utf8(arguments[i]);
        if (form == u"preview") {
            show_preview(windows, u"C:\\windows\\temp");
            continue;
        }
        if (form == u"tray") {
            show_tray(windows, {});
            continue;
        }
        if (form.starts_with(u"box ")) {
            show_tray(windows, numeric_value(form.substr(4)));
            continue;
        }
        prompt.ask(form);
        std::printf("%s: %s\n", arguments[i], to_utf8(prompt.values().answer).c_str());
    }
}
