#include "diagnostics/error_log.h"

#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"

#include <gtest/gtest.h>

namespace ornavel::diagnostics {
namespace {

using namespace settings;

struct ErrorLogTest : testing::Test {
    MemoryStore store;
    MemoryFiles files;
    FixedClock clock;
    ErrorLog log{store, files, clock, u"C:\\addin"};

    void name_log(TextView path) { save(store, admin::ErrorFileLocation, path); }
};

TEST_F(ErrorLogTest, WithoutANamedLogTheDefaultOneIsCreatedInItsFolderAndNamed) {
    log.append_error(u"Disk full", {u"cmdOkToSend_Click", u"Send_Err"});
    EXPECT_TRUE(files.folder_exists(u"C:\\addin\\Support"));
    EXPECT_EQ(read(store, admin::ErrorFileLocation), u"C:\\addin\\Support\\SupportLog.txt");
    EXPECT_EQ(files.contents[u"C:\\addin\\Support\\SupportLog.txt"],
              "Date: 11-20-2003 14:05:09, cmdOkToSend_Click, Send_Err, Disk full\r\n");
}

TEST_F(ErrorLogTest, ADefaultLogOfAnEarlierInstallationIsBegunAnew) {
    files.contents[u"C:\\addin\\Support\\SupportLog.txt"] = "earlier\r\n";
    log.write_note(u"a note");
    EXPECT_EQ(files.contents[u"C:\\addin\\Support\\SupportLog.txt"], "Date: 11-20-2003 14:05:09, a note\r\n");
}

TEST_F(ErrorLogTest, LinesAreAppendedToTheNamedLog) {
    name_log(u"D:\\logs\\mine.txt");
    files.contents[u"D:\\logs\\mine.txt"] = "earlier\r\n";
    clock.time = {1999, 1, 2, 3, 4, 5};
    log.write_note(u"a note");
    EXPECT_EQ(files.contents[u"D:\\logs\\mine.txt"], "earlier\r\nDate: 01-02-1999 03:04:05, a note\r\n");
    EXPECT_FALSE(files.folder_exists(u"C:\\addin\\Support"));
}

TEST_F(ErrorLogTest, ANoteCreatesTheLogFirstWhenNoneIsNamed) {
    log.write_note(u"a note");
    EXPECT_EQ(files.contents[u"C:\\addin\\Support\\SupportLog.txt"], "Date: 11-20-2003 14:05:09, a note\r\n");
}

TEST_F(ErrorLogTest, ASystemCheckLineNeverChoosesALogButMakesANamedFile) {
    log.SystemCheck(u"Fired", u"", u"On Connection");
    EXPECT_TRUE(files.contents.empty());
    EXPECT_EQ(store.find(u"Admin Settings", admin::ErrorFileLocation.name), std::nullopt);

    name_log(u"C:\\new.txt");
    log.SystemCheck(u"Subject OK", u"Check 3", u"Send Event");
    EXPECT_EQ(files.contents[u"C:\\new.txt"],
              "System Check: 11-20-2003 14:05:09, Subject OK, Check 3, Send Event\r\n");
}

TEST_F(ErrorLogTest, LogsAreUtf8WithoutAMark) {
    name_log(u"C:\\log.txt");
    log.write_note(u"M\u00fcller \u20ac");
    EXPECT_EQ(files.contents[u"C:\\log.txt"], "Date: 11-20-2003 14:05:09, M\xC3\xBCller \xE2\x82\xAC\r\n");
}

TEST_F(ErrorLogTest, NotesAndChecksThatCantBeWrittenAreLostQuietly) {
    name_log(u"C:\\locked.txt");
    files.refused.insert(u"C:\\locked.txt");
    log.write_note(u"a note");
    log.SystemCheck(u"a", u"b", u"c");
    EXPECT_TRUE(files.contents.empty());
    EXPECT_THROW(log.append_error(u"a", {u"b", u"c"}), Failure);
}

} // namespace
} // namespace ornavel::diagnostics
