// form_gallery FORM...: shows these forms, one after the other, and prints the answers: a mode of the prompt
// dialog, or "preview" with the page that it is to show.
#include "base/encoding.h"
#include "diagnostics/error_log.h"
#include "forms/frmBrowser.h"
#include "forms/frmMessage.h"
#include "settings/store.h"
#include "win32/machine.h"
#include "win32/windows_files.h"

#include <cstdio>
#include <objbase.h>

namespace {

using namespace ornavel;

/// Says on the console what a form's code trapped.
class Console final : public ErrorSink {
    void take(TextView description, TrapName trap) noexcept override {
        std::printf("%s, %s, %s\n", to_utf8(description).c_str(), to_utf8(trap.sub_function).c_str(),
                    to_utf8(trap.section).c_str());
    }
};

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
        prompt.ask(form);
        std::printf("%s: %s\n", arguments[i], to_utf8(prompt.values().answer).c_str());
    }
}
