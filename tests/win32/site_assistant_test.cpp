#include "rehearsal/windows/registry_world.h"
#include "tests/win32/real_program.h"
#include "win32/environment.h"
#include "win32/windows_files.h"

namespace ornavel::win32 {
namespace {

constexpr const wchar_t* title = L"Ornavel Setup";

/// The wizard's executable, for a user whose folders are there.
struct SetupProgram : testing::Test {
    rehearsal::RegistryWorld registry;
    WindowsFiles files;

    SetupProgram() {
        const Text folder = expanded(u"%SystemRoot%");
        registry.change_settings(
            {{u"Admin Settings",
              {{u"SigEmail", u"jo@example.com"},
               {u"SigWebsite", u"www.example.com"},
               {u"HTM Files Path", folder},
               {u"Signatures Path", folder}}},
             {u"User Settings", {{u"Template", u"letter.htm"}, {u"Signature", u"none"}}}});
    }

    rehearsal::ByName<rehearsal::SettingValue> settings() const {
        rehearsal::Snapshot snapshot;
        registry.add_to(snapshot);
        return snapshot.settings[u"Admin Settings"];
    }
};

TEST_F(SetupProgram, ShowsItsWindowWritesWhatItsUserFinishesAndEnds) {
    const RealProgram program(u"SiteAssistant.exe");
    const HWND form = program.window(title);
    ASSERT_TRUE(form);
    EXPECT_EQ(text_in(control(form, L"txtSigEmail")), u"jo@example.com");
    type(form, L"txtSigFax", L" 12 ");
    for (int page = 0; page < 3; ++page) press(form, L"cmdNext");
    EXPECT_FALSE(settings().contains(u"SigFax"));
    press(form, L"cmdFinish");
    EXPECT_EQ(program.exit_code(), 0u);
    EXPECT_EQ(settings()[u"SigFax"], rehearsal::SettingValue(Text(u"12")));
    EXPECT_EQ(settings()[u"StartupSetupWiz"], rehearsal::SettingValue(Text(u"False")));
    EXPECT_FALSE(files.file_exists(expanded(u"%TEMP%\\OrnavelSetupPreview.html")));
}

TEST_F(SetupProgram, StartedTwiceBringsTheFirstToTheFront) {
    expect_one_at_a_time(u"SiteAssistant.exe", title);
}

} // namespace
} // namespace ornavel::win32
