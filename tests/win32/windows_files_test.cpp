#include "win32/windows_files.h"

#include "base/errors.h"
#include "win32/handle.h"
#include "win32/wide.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {
namespace {

class Disk : public testing::Test {
protected:
    void SetUp() override {
        wchar_t temporary[MAX_PATH];
        ASSERT_NE(GetTempPathW(MAX_PATH, temporary), 0U);
        folder = text_of(temporary) + u"ornavel test " + to_text(GetCurrentProcessId());
        files.create_folder(folder);
    }
    void TearDown() override {
        for (const Text& name : files.list(folder)) files.remove(in_folder(name));
        RemoveDirectoryW(wide(folder).c_str());
    }
    Text in_folder(TextView name) const { return folder + u"\\" + Text(name); }
    Text failure_of_reading(TextView path) {
        try {
            files.read(path);
        } catch (const Failure& failure) {
            return failure.description();
        }
        return u"no failure";
    }

    WindowsFiles files;
    Text folder;
};

TEST_F(Disk, BytesComeBackAsTheyWereWritten) {
    const std::string bytes("a\r\n\0\xFF\x1A end", 10);
    files.write(in_folder(u"ä 日本.htm"), bytes);
    EXPECT_EQ(files.read(in_folder(u"Ä 日本.HTM")), bytes);
    EXPECT_TRUE(files.file_exists(in_folder(u"ä 日本.htm")));
}

TEST_F(Disk, AWriteReplacesAndAnAppendAdds) {
    files.append(in_folder(u"log.txt"), "one\r\n");
    files.append(in_folder(u"log.txt"), "two\r\n");
    EXPECT_EQ(files.read(in_folder(u"log.txt")), "one\r\ntwo\r\n");
    files.write(in_folder(u"log.txt"), "x");
    EXPECT_EQ(files.read(in_folder(u"log.txt")), "x");
    files.write(in_folder(u"log.txt"), "");
    EXPECT_EQ(files.read(in_folder(u"log.txt")), "");
}

constexpr int lines_of_each = 2000;

DWORD WINAPI append_lines(void* path) {
    WindowsFiles files;
    for (int line = 0; line < lines_of_each; ++line)
        files.append(static_cast<const Text*>(path)->c_str(), "line\r\n");
    return 0;
}

TEST_F(Disk, TwoThatAppendToOneFileAtTheSameTimeLoseNoLine) {
    Text path = in_folder(u"log.txt");
    const Handle other(CreateThread(nullptr, 0, append_lines, &path, 0, nullptr));
    append_lines(&path);
    EXPECT_EQ(WaitForSingleObject(other.get(), 60'000), WAIT_OBJECT_0);
    EXPECT_EQ(files.read(path).size(), 2 * lines_of_each * std::string_view("line\r\n").size());
}

TEST_F(Disk, LargeFilesAreReadWhole) {
    const std::string bytes(100'001, 'x');
    files.write(in_folder(u"large.htm"), bytes);
    EXPECT_EQ(files.read(in_folder(u"large.htm")), bytes);
}

TEST_F(Disk, AListHasFilesOnlyInOrderWithoutCase) {
    for (const TextView name : {u"b.htm", u"A.htm", u"C.htm", u".hidden"}) files.write(in_folder(name), "");
    files.create_folder(in_folder(u"aa"));
    const std::vector<Text> expected{u".hidden", u"A.htm", u"b.htm", u"C.htm"};
    EXPECT_EQ(files.list(folder), expected);
    EXPECT_EQ(files.list(folder + u"\\"), expected);
    RemoveDirectoryW(wide(in_folder(u"aa")).c_str());
}

TEST_F(Disk, AListOfFoldersHasNoFiles) {
    files.write(in_folder(u"a.htm"), "");
    for (const TextView name : {u"b", u"A"}) files.create_folder(in_folder(name));
    EXPECT_EQ(files.list_folders(folder), (std::vector<Text>{u"A", u"b"}));
    EXPECT_TRUE(files.list_folders(in_folder(u"missing")).empty());
    for (const TextView name : {u"b", u"A"}) files.remove_folder(in_folder(name));
}

TEST_F(Disk, ARemovedFolderIsGoneWithEverythingInIt) {
    files.create_folder(in_folder(u"one\\two"));
    files.write(in_folder(u"one\\a.gif"), "x");
    files.write(in_folder(u"one\\two\\b.gif"), "x");
    files.remove_folder(in_folder(u"one"));
    EXPECT_FALSE(files.folder_exists(in_folder(u"one")));
    EXPECT_THROW(files.remove_folder(in_folder(u"one")), Failure);
}

TEST_F(Disk, WhatIsNotAFolderHasNoFiles) {
    files.write(in_folder(u"a.htm"), "");
    for (const Text& path : {Text(), in_folder(u"missing"), in_folder(u"a.htm"), Text(u"Q:\\x")})
        EXPECT_TRUE(files.list(path).empty()) << to_utf8(path);
}

TEST_F(Disk, FilesAndFoldersAreToldApart) {
    files.write(in_folder(u"a.htm"), "");
    EXPECT_FALSE(files.folder_exists(in_folder(u"a.htm")));
    EXPECT_FALSE(files.file_exists(folder));
    EXPECT_TRUE(files.folder_exists(folder));
    EXPECT_FALSE(files.file_exists(u""));
    EXPECT_FALSE(files.folder_exists(u""));
    EXPECT_TRUE(files.folder_exists(u"C:\\"));
}

TEST_F(Disk, AFailureNamesThePathAndTheSystemsReason) {
    const Text path = in_folder(u"missing.htm");
    EXPECT_EQ(failure_of_reading(path), path + u": " + system_message(ERROR_FILE_NOT_FOUND));
    EXPECT_THROW(files.read(folder), Failure);
    EXPECT_THROW(files.write(in_folder(u"missing\\a.htm"), "x"), Failure);
    EXPECT_THROW(files.append(folder, "x"), Failure);
    EXPECT_THROW(files.remove(path), Failure);
}

TEST_F(Disk, ARemovedFileIsGone) {
    files.write(in_folder(u"a.htm"), "x");
    files.remove(in_folder(u"a.htm"));
    EXPECT_FALSE(files.file_exists(in_folder(u"a.htm")));
}

TEST_F(Disk, MissingParentFoldersAreMade) {
    const Text deep = in_folder(u"one\\two\\three");
    files.create_folder(deep);
    files.create_folder(deep + u"\\");
    EXPECT_TRUE(files.folder_exists(deep));
    EXPECT_THROW(files.create_folder(u"Q:\\one\\two"), Failure);
    for (const TextView made : {u"one\\two\\three", u"one\\two", u"one"})
        RemoveDirectoryW(wide(in_folder(made)).c_str());
}

TEST(AnsiCodePage, ConvertsOnlyWhatItHolds) {
    const CodePage& ansi = WindowsFiles().ansi();
    if (GetACP() != 1252) GTEST_SKIP() << "the machine's code page is " << GetACP();
    EXPECT_EQ(ansi.encode(u"Grüße, 10 €"), "Gr\xFC\xDF"
                                           "e, 10 \x80");
    EXPECT_EQ(ansi.decode("Gr\xFC\xDF"
                          "e, 10 \x80"),
              u"Grüße, 10 €");
    EXPECT_EQ(ansi.encode(u""), "");
    EXPECT_EQ(ansi.decode(""), u"");
    for (const TextView foreign : {u"日本", u"\x0101", u"\x2081", u"\xD800"})
        EXPECT_EQ(ansi.encode(foreign), std::nullopt);
}

} // namespace
} // namespace ornavel::win32
