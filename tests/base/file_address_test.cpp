#include "base/file_address.h"

#include <gtest/gtest.h>

namespace ornavel {
namespace {

TEST(FileAddresses, BecomePaths) {
    EXPECT_EQ(path_of_address(u"file:///C:/a%20b/c.gif"), u"C:\\a b\\c.gif");
    EXPECT_EQ(path_of_address(u"FILE:\\\\c:\\d.gif"), u"c:\\d.gif");
    EXPECT_EQ(path_of_address(u"file://server/share/e.gif"), u"\\\\server\\share\\e.gif");
    EXPECT_EQ(path_of_address(u"pictures/f.gif"), u"pictures\\f.gif");
    EXPECT_EQ(path_of_address(u"file:"), u"\\\\");
    EXPECT_EQ(path_of_address(u""), u"");
}

TEST(FileAddresses, AreReadBehindTheirEscapes) {
    EXPECT_EQ(path_of_address(u"C:\\R%26D\\R&amp;D%2fx%2Fy"), u"C:\\R&D\\R&D\\x\\y");
    EXPECT_EQ(path_of_address(u"%7e%7F"), u"~\x7f");
}

TEST(FileAddresses, KeepWhatIsNoEscape) {
    EXPECT_EQ(path_of_address(u"C:\\50%.gif"), u"C:\\50%.gif");
    EXPECT_EQ(path_of_address(u"100%2"), u"100%2");
    EXPECT_EQ(path_of_address(u"%g0%0g%80%e4%"), u"%g0%0g%80%e4%");
}

TEST(FileAddresses, ADriveIsALetterWithAColon) {
    EXPECT_TRUE(names_drive(u"C:"));
    EXPECT_TRUE(names_drive(u"z:\\x"));
    EXPECT_FALSE(names_drive(u"C"));
    EXPECT_FALSE(names_drive(u"1:\\x"));
    EXPECT_FALSE(names_drive(u"\\\\server"));
}

} // namespace
} // namespace ornavel
