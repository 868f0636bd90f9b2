#include "tests/win32/form_stage.h"
#include "win32/environment.h"
#include "win32/windows_files.h"

namespace ornavel::win32 {
namespace {

using forms::PathQuestion;

/// The system's own dialogs, while somebody acts in them.
std::optional<Text> ask(const PathQuestion& question, Acts acts) {
    std::optional<Text> answer;
    play(std::move(acts), [&] { answer = DesktopWindows().ask_for_path(question); });
    return answer;
}

std::function<void(HWND)> pressing_number(int id) {
    return [id](HWND window) { PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(id), 0); };
}

TEST(PathDialog, CarriesItsTitleAndGivesNothingWhenItIsCancelled) {
    for (const auto kind :
         {PathQuestion::Kind::existing_file, PathQuestion::Kind::new_file, PathQuestion::Kind::folder}) {
        const auto answer =
            ask({.kind = kind, .title = u"Where to"},
                {[](HWND window) { EXPECT_EQ(text_in(window), u"Where to"); }, pressing_number(IDCANCEL)});
        EXPECT_EQ(answer, std::nullopt);
    }
}

TEST(PathDialog, GivesTheWholePathOfTheProposedFile) {
    const Text path = expanded(u"%TEMP%\\card of jo.vcf");
    WindowsFiles().write(path, "x");
    const auto answer =
        ask({.title = u"vCard File", .proposed = path, .files = u"vCards", .pattern = u"*.vcf"},
            {pressing_number(IDOK)});
    EXPECT_TRUE(answer && same_name(*answer, path));
    WindowsFiles().remove(path);
}

TEST(PathDialog, ANewFileHasTheExtensionOfItsPattern) {
    const auto named = [](TextView file, TextView pattern) {
        const Text path = expanded(u"%TEMP%\\") + Text(file);
        const auto answer = ask({.kind = PathQuestion::Kind::new_file,
                                 .title = u"Export",
                                 .proposed = path,
                                 .files = u"Registry files",
                                 .pattern = Text(pattern)},
                                {pressing_number(IDOK)});
        return answer.value_or(Text()).substr(answer.value_or(Text()).find_last_of(u'\\') + 1);
    };
    EXPECT_EQ(named(u"backup", u"*.reg"), u"backup.reg");
    EXPECT_EQ(named(u"backup.reg", u"*.reg"), u"backup.reg");
    EXPECT_EQ(named(u"people", u"*.csv;*.txt"), u"people.csv");
    EXPECT_EQ(named(u"backup", u""), u"backup");
}

TEST(PathDialog, AProposalThatIsNoFilesNameKeepsNobodyFromTheDialog) {
    EXPECT_EQ(
        ask({.title = u"vCard File", .proposed = u"C:\\a|b?.vcf;C:\\c.vcf"}, {pressing_number(IDCANCEL)}),
        std::nullopt);
}

TEST(PathDialog, GivesTheProposedFolder) {
    const Text folder = expanded(u"%SystemRoot%\\system32");
    const auto answer = ask({.kind = PathQuestion::Kind::folder, .title = u"Folder", .proposed = folder},
                            {pressing_number(IDOK)});
    EXPECT_TRUE(answer && same_name(*answer, folder));
}

} // namespace
} // namespace ornavel::win32
