#include "diagnostics/basSysInfo.h"

#include <gtest/gtest.h>

namespace ornavel::diagnostics {
namespace {

TEST(SystemInfo, ThePlatformNumberNamesTheOperatingSystem) {
    EXPECT_EQ(operating_system_line({0, 3, 11, 7}), u"Windows 32s 3.11 (Build 7)");
    EXPECT_EQ(operating_system_line({1, 4, 10, 2222}), u"Windows 95 4.10 (Build 2222)");
    EXPECT_EQ(operating_system_line({2, 5, 1, 2600}), u"Windows NT 5.1 (Build 2600)");
    EXPECT_EQ(operating_system_line({3, 5, 0, 1}), u"5.0 (Build 1)");
}

TEST(SystemInfo, TheProcessorTypeHasAName) {
    EXPECT_EQ(processor_line(386), u"CPU: Intel 386");
    EXPECT_EQ(processor_line(486), u"CPU: Intel 486");
    EXPECT_EQ(processor_line(586), u"CPU: Intel Pentium");
    EXPECT_EQ(processor_line(4000), u"CPU: MIPS R4000");
    EXPECT_EQ(processor_line(21064), u"CPU: DEC Alpha 21064");
    for (const int other : {0, 585, 8664, -1}) EXPECT_EQ(processor_line(other), u"CPU: (unknown)");
}

TEST(SystemInfo, MemoryIsWholeKilobytesInGroupsOfThree) {
    EXPECT_EQ(kilobytes(2147483648), u"2,097,152K");
    EXPECT_EQ(kilobytes(1023), u"0K");
    EXPECT_EQ(kilobytes(1024), u"1K");
    EXPECT_EQ(kilobytes(1024 * 999 + 1023), u"999K");
    EXPECT_EQ(kilobytes(1024 * 1000), u"1,000K");
    EXPECT_EQ(kilobytes(268435456), u"262,144K");
    EXPECT_EQ(kilobytes(std::uint64_t{1} << 42), u"4,294,967,296K");
}

} // namespace
} // namespace ornavel::diagnostics
