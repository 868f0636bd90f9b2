// Forms that are opened again and again leave nothing behind. ORNAVEL_OPENINGS says how often, 100 times
// unless set.
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_launcher.h"
#include "tests/fakes/recording_object.h"
#include "tests/fakes/recording_reports.h"
#include "tests/win32/form_stage.h"

#include "forms/BrevantUser.h"
#include "win32/handle.h"

#include <cstdlib>
#include <objbase.h>

namespace ornavel::win32 {
namespace {

BOOL CALLBACK count_window(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

/// What is in use now.
struct Counted {
    int windows = 0;
    int kernel_handles = 0;
    long references = 0;
    bool operator==(const Counted&) const = default;
};

/// The lowest number that is free; the system gives it to the next handle.
int next_handle_number() {
    const Handle fresh(CreateEventW(nullptr, FALSE, FALSE, nullptr));
    constexpr int step_between_handles = 4;
    return static_cast<int>(reinterpret_cast<INT_PTR>(fresh.get())) / step_between_handles;
}

class Leaks : public testing::Test {
protected:
    Leaks() {
        CoInitialize(nullptr);
        item_object->values = {{u"HTMLBody", Text(u"Hello")}};
        settings::save(store, settings::admin::HTMFilesPath, u"C:\\t");
        files.contents = {{u"C:\\t\\letter.htm", "x"}};
    }
    ~Leaks() override { CoUninitialize(); }

    Counted count() const {
        Counted now;
        EnumThreadWindows(GetCurrentThreadId(), count_window, reinterpret_cast<LPARAM>(&now.windows));
        now.kernel_handles = next_handle_number();
        now.references = item_object.use_count();
        return now;
    }

    static int openings() {
        const char* given = std::getenv("ORNAVEL_OPENINGS");
        return given ? std::atoi(given) : 10;
    }

    /// The first openings bring along what the system keeps for later ones.
    void expect_no_leaks(const std::function<void()>& open) {
        for (int warm_up = 0; warm_up < 3; ++warm_up) open();
        const Counted before = count();
        for (int opening = 0; opening < openings(); ++opening) open();
        const Counted after = count();
        EXPECT_EQ(after.windows, before.windows);
        EXPECT_EQ(after.kernel_handles, before.kernel_handles);
        EXPECT_EQ(after.references, before.references);
    }

    void open_options() {
        DesktopWindows windows;
        const host::MailItem item(item_object);
        const compose::Services composing{store,   files,  clock,       windows,
                                          objects, errors, application, start_up};
        bool answer = false;
        forms::BrevantUser options({.composing = composing,
                                    .windows = windows,
                                    .launcher = launcher,
                                    .strings = forms::built_in_strings(),
                                    .item = item,
                                    .page = u"C:\\page.html",
                                    .program_folder = u"C:\\app",
                                    .language = u"English",
                                    .find_reply = [] { return compose::Reply(); }},
                                   answer);
        show(options.form(), {});
    }

    void open_preview() {
        DesktopWindows windows;
        const host::MailItem item(item_object);
        forms::PreviewAnswers answers;
        forms::frmBrowser preview({store, files, windows, errors, launcher, item, u"C:\\app"}, answers,
                                  u"C:\\page.html",
                                  [](TextView) { return compose::Composed{.html = u"<p>Hello</p>"}; });
        preview.form().load();
        preview.render();
        show(preview.form(), {});
    }

    settings::MemoryStore store;
    MemoryFiles files;
    FixedClock clock;
    PreparedObjects objects;
    RecordingReports errors;
    RecordingLauncher launcher;
    host::Application application;
    compose::StartUpValues start_up;
    std::vector<Text> journal;
    std::shared_ptr<RecordingObject> item_object = std::make_shared<RecordingObject>(journal);
};

TEST_F(Leaks, TheCountersNoticeAPlantedLeakOfTen) {
    const HWND kept = make_window(L"kept"); // to a thread's first window the system adds one of its own
    const Counted before = count();
    std::vector<HWND> windows;
    std::vector<Handle> handles;
    std::vector<host::MailItem> references;
    for (int leak = 0; leak < 10; ++leak) {
        windows.push_back(make_window(L"leaked"));
        handles.emplace_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
        references.emplace_back(item_object);
    }
    const Counted leaked = count();
    EXPECT_EQ(leaked.windows, before.windows + 10);
    EXPECT_EQ(leaked.kernel_handles, before.kernel_handles + 10);
    EXPECT_EQ(leaked.references, before.references + 10);
    for (const HWND window : windows) DestroyWindow(window);
    DestroyWindow(kept);
}

TEST_F(Leaks, TheSendOptionsFormLeavesNothingBehind) {
    expect_no_leaks([this] { open_options(); });
}

TEST_F(Leaks, ThePreviewLeavesNothingBehind) {
    expect_no_leaks([this] { open_preview(); });
}

TEST_F(Leaks, ThePromptLeavesNothingBehind) {
    expect_no_leaks([] {
        forms::PromptValues values{.mode = u"Reply", .answer = u"No"};
        forms::frmMessage prompt(values, forms::built_in_strings());
        show(prompt.form(), {});
    });
}

} // namespace
} // namespace ornavel::win32
