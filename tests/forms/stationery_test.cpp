#include "forms/stationery.h"
#include "tests/fakes/memory_files.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

TEST(Stationery, IsWhatEndsInHtmAndIsNoWorkFileOfThePreview) {
    MemoryFiles files;
    for (const TextView name : {u"b.HTM", u"a.htm", u"c.html", u"d.txt", u"a_Merge.htm", u"e.htm.htm"})
        files.contents[u"C:\\t\\" + Text(name)] = "x";
    EXPECT_EQ(stationery_in(files, u"C:\\t"), (std::vector<Text>{u"a.htm", u"b.HTM", u"e.htm.htm"}));
    EXPECT_TRUE(stationery_in(files, u"C:\\none").empty());
}

} // namespace
} // namespace ornavel::forms
