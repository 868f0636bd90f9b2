#include "base/errors.h"
#include "win32/environment.h"
#include "win32/machine.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {
namespace {

class Launching : public testing::Test {
protected:
    void SetUp() override {
        folder = expanded(u"%TEMP%\\ornavel launch ") + to_text(GetCurrentProcessId());
        files.create_folder(folder);
    }
    void TearDown() override { files.remove_folder(folder); }

    Text failure_of(TextView program) {
        try {
            launcher.launch(program, u"", WindowState::hidden);
        } catch (const Failure& failure) {
            return failure.description();
        }
        return u"no failure";
    }

    WindowsFiles files;
    ShellLauncher launcher;
    Text folder;
};

TEST_F(Launching, AFailureTellsTheShellsOwnReason) {
    const Text missing = folder + u"\\missing.exe", unknown = folder + u"\\a.no-such-kind";
    files.write(unknown, "x");
    EXPECT_EQ(failure_of(missing), missing + u": " + system_message(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(failure_of(unknown), unknown + u": " + system_message(ERROR_NO_ASSOCIATION));
}

TEST_F(Launching, AProgramStartsInItsOwnFolder) {
    const Text program = expanded(u"%SystemRoot%\\system32\\cmd.exe"), told = folder + u"\\told.txt";
    launcher.launch(program, u"/c cd >\"" + told + u"\"", WindowState::hidden);
    std::string where;
    for (int waited = 0; waited < 200 && where.empty(); ++waited) {
        Sleep(50);
        attempt([&] { where = files.read(told); });
    }
    EXPECT_TRUE(same_name(from_utf8(where).substr(0, where.find('\r')), expanded(u"%SystemRoot%\\system32")))
        << where;
}

} // namespace
} // namespace ornavel::win32
