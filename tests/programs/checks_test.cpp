#include "programs/site_assistant/checks.h"
#include "tests/fakes/memory_files.h"

#include <gtest/gtest.h>

namespace ornavel::programs {
namespace {

TEST(LocalPictures, AreThoseWhoseAddressNamesADrive) {
    EXPECT_EQ(local_pictures(u"<img src='C:\\a b.gif'><IMG SRC=\"file:///D:/c%20d.gif\">"
                             u"<td background=e:\\f.gif><img src=c:/g.gif width=1>"),
              (std::vector<Text>{u"C:\\a b.gif", u"D:\\c d.gif", u"c:\\g.gif", u"e:\\f.gif"}));
}

TEST(LocalPictures, AreFoundBehindTheEscapesOfAddresses) {
    EXPECT_EQ(local_pictures(u"<img src='file:///C:/R%26D/a%5b1%5D.gif'><img src='C:\\R&amp;D\\50%.gif'>"),
              (std::vector<Text>{u"C:\\R&D\\a[1].gif", u"C:\\R&D\\50%.gif"}));
}

TEST(LocalPictures, LeaveOutWhatLiesElsewhereOrFollowsFromAField) {
    EXPECT_TRUE(local_pictures(u"<img src='http://example.com/a.gif'><img src='file://server/share/a.gif'>"
                               u"<img src='\\\\server\\a.gif'><img src='a.gif'><img src='C:\\[#SigGifFile#]'>"
                               u"<img src=")
                    .empty());
}

TEST(Folders, AreNamedWithoutBackslashesAtTheirEndUnlessTheyAreDrives) {
    EXPECT_EQ(without_end(u"C:\\t\\\\"), u"C:\\t");
    EXPECT_EQ(without_end(u"C:t\\"), u"C:t");
    EXPECT_EQ(without_end(u"C:\\"), u"C:\\");
    EXPECT_EQ(without_end(u"\\\\s\\t\\"), u"\\\\s\\t");
}

TEST(TemplateInUse, IsTheChosenOneOrTheFirstOfTheFolder) {
    MemoryFiles files;
    files.contents = {{u"C:\\t\\a.htm", "x"}, {u"C:\\t\\b.htm", "x"}};
    EXPECT_EQ(template_in_use(files, u"C:\\t", u" b.htm "), u"C:\\t\\b.htm");
    EXPECT_EQ(template_in_use(files, u"C:\\t\\", u"c.htm"), u"C:\\t\\a.htm");
    EXPECT_EQ(template_in_use(files, u"C:\\none", u"c.htm"), std::nullopt);
}

} // namespace
} // namespace ornavel::programs
