#include "rehearsal/windows/registry_world.h"
#include "tests/win32/real_program.h"

namespace ornavel::win32 {
namespace {

TEST(OptionsProgram, ShowsItsWindowWritesWhatItsUserSavesAndEnds) {
    rehearsal::RegistryWorld registry;
    registry.change_settings({{u"User Settings", {{u"SettingButtonBar", u"off"}}}});
    const auto settings = [&] {
        rehearsal::Snapshot snapshot;
        registry.add_to(snapshot);
        return snapshot.settings;
    };
    const RealProgram program(u"OptionsAssistant.exe");
    const HWND form = program.window(L"Ornavel Options");
    ASSERT_TRUE(form);
    type(form, L"txtSearch", L"SigFullname");
    type(form, L"txtValue", L"Jo \x00C4 & \x20AC");
    EXPECT_FALSE(settings()[u"Admin Settings"].contains(u"SigFullname"));
    press(form, L"cmdSave");
    press(form, L"cmdClose");
    EXPECT_EQ(program.exit_code(), 0u);
    EXPECT_EQ(settings()[u"Admin Settings"][u"SigFullname"],
              rehearsal::SettingValue(Text(u"Jo \u00C4 & \u20AC")));
    EXPECT_EQ(settings()[u"User Settings"][u"SettingButtonBar"], rehearsal::SettingValue(Text(u"off")));
}

TEST(OptionsProgram, StartedTwiceBringsTheFirstToTheFront) {
    expect_one_at_a_time(u"OptionsAssistant.exe", L"Ornavel Options");
}

} // namespace
} // namespace ornavel::win32
