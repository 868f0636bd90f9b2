#include "rehearsal/comparison.h"

#include "rehearsal/comparable_text.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

std::vector<std::string> compare(const char* native, const char* dll) {
    std::vector<std::string> lines;
    for (const auto& difference : differences(Json::parse(native), Json::parse(dll)))
        lines.push_back(to_line(difference));
    return lines;
}

using Lines = std::vector<std::string>;

struct Sample {
    const char* text;
    const char* comparable;
};

class ComparableText : public testing::TestWithParam<Sample> {};

TEST_P(ComparableText, HasOneWordForWhatTheMachineDecides) {
    EXPECT_EQ(comparable_text(GetParam().text), GetParam().comparable);
}

constexpr Sample samples[] = {
    {"", ""},
    {"Hello", "Hello"},
    {"Date: 11-20-2003 14:05:09, a", "Date: (date), a"},
    {"Thursday, November 20, 2003 and May 1, 2004", "Thursday, (date) and (date)"},
    {"('11/20/2003 2:05:09 PM', '1/2/2003 12:00:00 AM')", "('(date)', '(date)')"},
    {"[Nov-20-03 02:05 PM] Hello", "[(date)] Hello"},
    {"11-20-2003 14:05", "11-20-2003 14:05"},
    {"november 20, 2003", "november 20, 2003"},
    {"11/20/2003 2:05:09 XM", "11/20/2003 2:05:09 XM"},
    {"Nov-20-03 02:05 pm", "Nov-20-03 02:05 pm"},
    {"a\nWindows NT 5.1\r\nMemory: 1K\r\nFree: 2K\r\nend", "a(system)\r\nend"},
    {"a\nWindows 95 4.0\r\nMemory: 1K", "a(system)"},
    {"a\nWindows 95 4.0\r\nMemory: 1", "a\nWindows 95 4.0\r\nMemory: 1"},
    {"Windows NT 5.1\r\n1K\r\n", "Windows NT 5.1\r\n1K\r\n"},
    {"\nWindows CE 3\r\n1K\r\n", "\nWindows CE 3\r\n1K\r\n"},
};
INSTANTIATE_TEST_SUITE_P(All, ComparableText, testing::ValuesIn(samples));

TEST(Comparison, FindsNothingWhereOnlyTheMachineDiffers) {
    EXPECT_EQ(compare(R"({"acts": [{"milliseconds": 1}], "files": {"a": "11-20-2003 14:05:09, x"}})",
                      R"({"files": {"a": "01-02-2020 00:00:00, x"}, "acts": [{"milliseconds": 9}]})"),
              Lines());
}

TEST(Comparison, NamesThePlaceAndWhatEitherPlayHasThere) {
    EXPECT_EQ(
        compare(R"({"items": [{"saves": 1}, {"Subject": "a"}]})",
                R"({"items": [{"saves": 2}, {"Subject": "b"}]})"),
        (Lines{"items[0].saves: native 1, real DLL 2", "items[1].Subject: native \"a\", real DLL \"b\""}));
}

TEST(Comparison, AMissingMemberOrElementIsADifference) {
    EXPECT_EQ(compare(R"({"a": null, "list": [1, 2]})", R"({"list": [1], "b": 3})"),
              (Lines{"a: native null, real DLL nothing", "list[1]: native 2, real DLL nothing",
                     "b: native nothing, real DLL 3"}));
}

TEST(Comparison, AValueOfAnotherKindIsADifference) {
    EXPECT_EQ(compare(R"({"a": {"b": 1}})", R"({"a": [1]})"), Lines{R"(a: native {"b":1}, real DLL [1])"});
    EXPECT_EQ(compare(R"({"a": 1})", R"({"a": "1"})"), Lines{R"(a: native 1, real DLL "1")"});
}

TEST(Comparison, LongTextsAreShownAroundTheFirstDifference) {
    const std::string before(500, 'x'), behind(500, 'y');
    const auto found = differences(Json(before + "é" + behind), Json(before + "è" + behind));
    ASSERT_EQ(found.size(), 1u);
    EXPECT_LT(found[0].native.size(), 200u);
    EXPECT_NE(found[0].native.find("xxé"
                                   "yy"),
              std::string::npos);
    EXPECT_NE(found[0].dll.find("xxè"
                                "yy"),
              std::string::npos);
}

TEST(Comparison, ADateInFrontOfTheDifferenceIsNotWhatIsShown) {
    EXPECT_EQ(compare(R"({"a": "11-20-2003 14:05:09, x"})", R"({"a": "01-02-2020 00:00:00, y"})"),
              Lines{R"(a: native "(date), x", real DLL "(date), y")"});
}

} // namespace
} // namespace ornavel::rehearsal
