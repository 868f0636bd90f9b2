#include "connect/registry_files.h"
#include "connect/session.h"
#include "forms/string_table.h"
#include "tests/fakes/fixed_clock.h"
#include "win32/handle.h"
#include "win32/machine.h"
#include "win32/system_information.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <gtest/gtest.h>

#include <cstdlib>

// The import of registry files with real files and processes, and a stand-in for the system's program.

namespace ornavel::win32 {
namespace {

constexpr TextView list_of_imports = u"C:\\windows\\ornavel_prefix\\imports.txt";
constexpr TextView programs = u"C:\\Program Files\\Brevant\\Ornavel\\Programs";
constexpr TextView temporary = u"C:\\BrevantTempReg";

Text beside_these_tests(TextView name) {
    const Text program = path_of(nullptr);
    return program.substr(0, program.find_last_of(u'\\') + 1) + Text(name);
}

void copy(const Text& from, const Text& to) {
    if (!CopyFileW(wide(from).c_str(), wide(to).c_str(), FALSE)) fail(from, GetLastError());
}

/// The scripting host's disk: Wine's own can't copy.
class Disk final : public host::Object {
public:
    explicit Disk(Text file = {}) : file_(std::move(file)) {}
    host::Value get(host::Member, const host::Arguments&) override { return {}; }
    void put(host::Member, const host::Value&) override {}
    host::Value call(host::Member member, const host::Arguments& arguments) override {
        const Text path = host::as_text(arguments.at(0)), name = member.name;
        if (name == u"GetFile") return std::make_shared<Disk>(path);
        if (name == u"Copy") copy(file_, path);
        if (name == u"CreateFolder" && !CreateDirectoryW(wide(path).c_str(), nullptr))
            fail(path, GetLastError());
        return {};
    }
    host::Subscription advise(host::EventSource, host::EventHandler) override { return nullptr; }
    bool is_same(const host::Object& other) const override { return this == &other; }

private:
    Text file_;
};

class Disks final : public host::Objects {
    host::ObjectPtr create(TextView) override { return std::make_shared<Disk>(); }
    host::ObjectPtr get(TextView) override { throw host::Error(u"none"); }
};

struct Imports : testing::Test {
    void SetUp() override {
        files.create_folder(programs);
        if (files.file_exists(list_of_imports)) files.remove(list_of_imports);
        copy(regedit, regedit + u".kept");
        copy(beside_these_tests(u"slow_regedit.exe"), regedit);
    }
    void TearDown() override {
        files.move(regedit + u".kept", regedit);
        if (files.folder_exists(temporary)) files.remove_folder(temporary);
        attempt([&] { files.remove(source); });
    }

    void leave_file(int milliseconds, const std::string& name) {
        files.write(source, std::to_string(milliseconds) + "\n" + name + ";");
    }
    bool is_imported(const std::string& name) const {
        return files.file_exists(list_of_imports) &&
               files.read(list_of_imports).find(name + ";") != std::string::npos;
    }
    bool import() { return connect::import_registry_file(session, u"NewUser.reg"); }

    const Text regedit = u"C:\\windows\\regedit.exe";
    const Text source = Text(programs) + u"\\NewUser.reg";
    WindowsFiles files;
    settings::MemoryStore settings;
    FixedClock clock;
    ShellLauncher launcher;
    Disks objects;
    DesktopWindows windows;
    WindowsInformation machine;
    connect::Session session{connect::Platform{.settings = settings,
                                               .files = files,
                                               .clock = clock,
                                               .launcher = launcher,
                                               .objects = objects,
                                               .windows = windows,
                                               .strings = forms::built_in_strings(),
                                               .machine = machine,
                                               .addin_folder = u"C:\\add-in"}};
};

/// ORNAVEL_IMPORTS in the environment asks for more of them.
TEST_F(Imports, AreNeverLostHoweverLongTheyTake) {
    const char* const wanted = std::getenv("ORNAVEL_IMPORTS");
    const int count = wanted ? std::atoi(wanted) : 20;
    int lost = 0, left_to_a_later_start = 0, starts = 0;
    for (int i = 0; i < count; ++i) {
        const std::string name = "import " + std::to_string(i);
        leave_file(i % 50 == 7 ? 2300 : i * 97 % 301, name);
        for (int start = 0; files.file_exists(source) && start < 3; ++start, ++starts) {
            if (import()) continue;
            ++left_to_a_later_start;
            leave_file(0, name); // the machine is quicker by then
        }
        lost += !files.file_exists(source) && !is_imported(name);
        EXPECT_FALSE(files.file_exists(source)) << name;
    }
    std::printf("%d imports, %d starts, %d left to a later one, %d lost\n", count, starts,
                left_to_a_later_start, lost);
    EXPECT_EQ(lost, 0);
    EXPECT_GT(left_to_a_later_start, 0);
}

TEST_F(Imports, ThatAreNotWaitedForAreLostAndNoticed) {
    leave_file(200, "hasty");
    session.platform.files.create_folder(temporary);
    const Text copied = Text(temporary) + u"\\NewUser.reg";
    copy(source, copied);
    launcher.launch(regedit, u"/s " + copied, WindowState::minimised);
    files.remove(copied);
    Sleep(1500);
    EXPECT_FALSE(is_imported("hasty"));
}

TEST_F(Imports, AProgramOfThatNameElsewhereIsNeverRun) {
    const Text planted = Text(programs) + u"\\regedit.exe";
    copy(beside_these_tests(u"win32_tests.exe"), planted); // imports nothing
    wchar_t before[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, before);
    SetCurrentDirectoryW(wide(programs).c_str());
    leave_file(0, "not planted");
    EXPECT_TRUE(import());
    SetCurrentDirectoryW(before);
    files.remove(planted);
    EXPECT_TRUE(is_imported("not planted"));
}

TEST_F(Imports, OfAFileThatIsOpenElsewhereAreMadeAndMadeAgain) {
    leave_file(0, "open");
    {
        const Handle open(CreateFileW(wide(source).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        EXPECT_TRUE(import());
        EXPECT_TRUE(files.file_exists(source));
        EXPECT_FALSE(files.folder_exists(temporary));
    }
    EXPECT_TRUE(import());
    EXPECT_FALSE(files.file_exists(source));
}

TEST_F(Imports, OfAFileThatNobodyMayReadAreLeftToTheNextStart) {
    leave_file(0, "locked");
    {
        const Handle open(CreateFileW(wide(source).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
        EXPECT_FALSE(import());
        EXPECT_TRUE(files.file_exists(source));
    }
    EXPECT_TRUE(import());
    EXPECT_TRUE(is_imported("locked"));
}

TEST_F(Imports, AProgramThatIsNotThereLeavesSourceAndCopy) {
    leave_file(0, "nobody");
    files.remove(regedit);
    EXPECT_FALSE(import());
    EXPECT_TRUE(files.file_exists(source));
    EXPECT_TRUE(files.file_exists(Text(temporary) + u"\\NewUser.reg"));
}

/// With the system's own program.
struct RealImports : Imports {
    void SetUp() override {
        Imports::SetUp();
        copy(regedit + u".kept", regedit);
    }
    Text imported() const {
        wchar_t text[64] = {};
        DWORD size = sizeof text;
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\Ornavel import", L"Colour", RRF_RT_REG_SZ, nullptr, text,
                     &size);
        return text_of(text);
    }
    void TearDown() override {
        RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\Ornavel import");
        Imports::TearDown();
    }
    static std::string with_colour(const std::string& colour) {
        return "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Ornavel import]\r\n\"Colour\"=\"" + colour +
               "\"\r\n";
    }
};

TEST_F(RealImports, WriteTheRegistry) {
    files.write(source, with_colour("blue"));
    EXPECT_TRUE(import());
    EXPECT_EQ(imported(), u"blue");
}

TEST_F(RealImports, OfFiveMegabytesGoOnUntilTheyAreThrough) {
    std::string large = with_colour("blue");
    while (large.size() < 5'000'000) large += "; a comment that makes the file long, and changes nothing\r\n";
    large += "\r\n[HKEY_CURRENT_USER\\Software\\Ornavel import]\r\n\"Colour\"=\"red\"\r\n";
    files.write(source, large);
    for (int start = 0; start < 5 && files.file_exists(source); ++start) {
        const bool ended = import();
        EXPECT_EQ(ended, !files.file_exists(source));
    }
    EXPECT_FALSE(files.file_exists(source));
    EXPECT_EQ(imported(), u"red");
}

TEST_F(RealImports, OfAnEmptyOrABrokenFileLetTheStartGoOn) {
    for (const char* const content :
         {"", "this is no registry file\r\n", "REGEDIT4\r\n[HKEY_CURRENT_USER\\Soft"}) {
        files.write(source, content);
        const bool ended = import();
        EXPECT_EQ(ended, !files.file_exists(source)) << content;
        attempt([&] { files.remove(source); });
    }
    files.write(source, with_colour("green"));
    EXPECT_TRUE(import());
    EXPECT_EQ(imported(), u"green");
}

} // namespace
} // namespace ornavel::win32
