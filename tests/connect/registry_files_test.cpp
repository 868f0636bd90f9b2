#include "connect/environment.h"
#include "connect/session.h"
#include "tests/rehearsal/stage.h"

#include <gtest/gtest.h>

namespace ornavel::connect {
namespace {

constexpr TextView programs = u"C:\\Program Files\\Brevant\\Ornavel\\Programs\\";
constexpr TextView temporary = u"C:\\BrevantTempReg\\";

/// Imports that go as a test wants them to.
class Imports final : public Launcher {
public:
    std::vector<Text> run;
    Progress goes = Progress::ended;
    bool can_be_started = true;
    std::function<void()> meanwhile = [] {};

    void launch(TextView, TextView, WindowState) override { FAIL() << "nobody waits for this"; }
    Progress run_windows_program(TextView name, TextView arguments, WindowState window,
                                 int milliseconds) override {
        if (!can_be_started) throw Failure(u"not there");
        EXPECT_EQ(name, u"regedit");
        EXPECT_EQ(window, WindowState::minimised);
        EXPECT_EQ(milliseconds, 2000);
        run.emplace_back(arguments);
        meanwhile();
        return goes;
    }
};

/// A start-up with a registry file for a new user.
struct Import : testing::Test {
    bool is_there(TextView folder, TextView name) {
        return stage.machine.files().file_exists(Text(folder) + Text(name));
    }
    bool is_left_to_the_next_start() {
        return is_there(programs, u"NewUser.reg") && is_there(temporary, u"NewUser.reg");
    }
    void start() { prepare_environment(session); }

    rehearsal::Stage stage{R"({
        "files": {"C:\\Program Files\\Brevant\\Ornavel\\Programs\\NewUser.reg": "REGEDIT4\r\n",
                  "C:\\Program Files\\Common Files\\Microsoft Shared\\Stationery\\Ivy.htm": "ivy"},
        "host": {"version": "11.0"},
        "do": []})"};
    Imports imports;
    Session session{Platform{.settings = stage.machine.addin_settings(),
                             .files = stage.machine.addin_files(),
                             .clock = stage.machine.addin_clock(),
                             .launcher = imports,
                             .objects = stage.client,
                             .windows = stage.machine.addin_windows(),
                             .strings = forms::built_in_strings(),
                             .machine = stage.machine.addin_machine(),
                             .addin_folder = u"C:\\add-in"}};
};

TEST_F(Import, ThatHasEndedIsDeletedWithItsCopy) {
    imports.meanwhile = [&] { EXPECT_TRUE(is_left_to_the_next_start()); };
    start();
    EXPECT_EQ(imports.run, std::vector<Text>{u"/s C:\\BrevantTempReg\\NewUser.reg"});
    EXPECT_FALSE(is_there(programs, u"NewUser.reg"));
    EXPECT_FALSE(stage.machine.files().folder_exists(temporary));
}

TEST_F(Import, ThatTakesItsTimeIsLeftToTheNextStart) {
    imports.goes = Progress::runs;
    start();
    EXPECT_TRUE(is_left_to_the_next_start());
    imports.goes = Progress::ended;
    start();
    EXPECT_EQ(imports.run.size(), 2u);
    EXPECT_FALSE(is_there(programs, u"NewUser.reg"));
}

TEST_F(Import, ThatSaysThatItFailedIsLeftToTheNextStart) {
    imports.goes = Progress::failed;
    start();
    EXPECT_TRUE(is_left_to_the_next_start());
}

TEST_F(Import, ThatCanNotBeStartedIsLeftToTheNextStart) {
    imports.can_be_started = false;
    start();
    EXPECT_TRUE(is_left_to_the_next_start());
}

TEST_F(Import, OfAnotherFileDoesNotTakeTheCopyOfOneThatStillRuns) {
    stage.machine.files().write(Text(programs) + u"DefaultUser.reg", "REGEDIT4\r\n");
    imports.goes = Progress::runs;
    imports.meanwhile = [&] {
        if (imports.run.size() == 2) imports.goes = Progress::ended;
    };
    start();
    EXPECT_TRUE(is_left_to_the_next_start());
    EXPECT_FALSE(is_there(programs, u"DefaultUser.reg"));
    EXPECT_FALSE(is_there(temporary, u"DefaultUser.reg"));
}

TEST_F(Import, ThroughATemporaryFolderThatLeadsElsewhereIsNotMade) {
    stage.machine.files().create_folder(u"C:\\BrevantTempReg");
    stage.machine.disk().make_link(u"C:\\BrevantTempReg");
    start();
    EXPECT_TRUE(imports.run.empty());
    EXPECT_TRUE(is_there(programs, u"NewUser.reg"));
    EXPECT_FALSE(is_there(temporary, u"NewUser.reg"));
}

TEST_F(Import, OfAnOlderCopyNeverTakesThePlaceOfOneThatCanNotBeMade) {
    stage.machine.files().create_folder(temporary);
    stage.machine.files().write(Text(temporary) + u"NewUser.reg", "older");
    stage.failures = rehearsal::Failures({{.subject = u"File.Copy"}});
    start();
    EXPECT_TRUE(imports.run.empty());
    EXPECT_TRUE(is_there(programs, u"NewUser.reg"));
}

TEST_F(Import, MayNameFoldersOfTheUserWhichAreMade) {
    session.platform.user_folder = u"C:\\Jo\\Ornavel";
    imports.meanwhile = [&] {
        settings::save(stage.machine.addin_settings(), settings::admin::ApplicationPath,
                       u"C:\\Jo\\Ornavel\\Work");
    };
    start();
    EXPECT_TRUE(stage.machine.files().folder_exists(u"C:\\Jo\\Ornavel\\Work"));
}

TEST_F(Import, ThatCanNotBeStartedMakesNoFolders) {
    session.platform.user_folder = u"C:\\Users\\Jo";
    save(session.platform.settings, settings::admin::ApplicationPath, u"C:\\Users\\Jo\\Ornavel");
    imports.can_be_started = false;
    start();
    EXPECT_FALSE(stage.machine.files().folder_exists(u"C:\\Users\\Jo\\Ornavel"));
}

TEST_F(Import, LeavesStationeryThatLiesElsewhereAlone) {
    constexpr TextView folder = u"C:\\Program Files\\Common Files\\Microsoft Shared\\Stationery";
    settings::save(stage.machine.addin_settings(), settings::admin::WipeoutPersonalStationeryAlways,
                   settings::on);
    stage.machine.disk().make_link(folder);
    start();
    EXPECT_TRUE(is_there(folder, u"\\Ivy.htm"));
}

TEST_F(Import, IsNotPreparedForWhereThereIsNone) {
    stage.machine.files().remove(Text(programs) + u"NewUser.reg");
    start();
    for (const auto& entry : stage.journal.entries()) EXPECT_NE(entry.what, u"CreateObject");
    for (const auto& entry : stage.journal.entries()) EXPECT_NE(entry.what, u"GetObject");
    EXPECT_TRUE(imports.run.empty());
}

} // namespace
} // namespace ornavel::connect
