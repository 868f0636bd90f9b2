#include "rehearsal/expectation.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

const char* const an_outcome =
    R"({"name": "hello", "items": [{"Subject": "One", "saves": 1}, {"Subject": "Two"}],
                                "error": null, "toolbar": []})";

std::vector<std::string> compare(const char* expected) {
    return mismatches(parse_json(expected, "expected"), parse_json(an_outcome, "outcome"));
}

TEST(Expectation, IsMetByMoreThanItNames) {
    for (const char* met : {
             R"({})",
             R"({"name": "hello", "error": null})",
             R"({"items": [{"Subject": "One"}, {}]})",
             R"({"items": {"count": 2}, "toolbar": {"count": 0}})",
             R"({"name": {"contains": "ell"}})",
             R"({"name": {"absent": "x"}})",
             R"({"name": {"matches": "^h.*o$"}})",
             R"({"nothing": {"missing": true}, "items": [{"saves": 1}, {"saves": {"missing": true}}]})",
         })
        EXPECT_EQ(compare(met), std::vector<std::string>()) << met;
}

TEST(Expectation, NamesThePathOfEachMismatch) {
    constexpr const char* unmet[][2] = {
        {R"({"name": "other"})", R"(name: expected "other", got "hello")"},
        {R"({"items": [{}, {"Subject": "Three"}]})", R"(items[1].Subject: expected "Three", got "Two")"},
        {R"({"nothing": 1})", R"(nothing: expected 1, got nothing is there)"},
        {R"({"name": {"missing": true}})", R"(name: expected {"missing":true}, got "hello")"},
        {R"({"name": {"contains": "x"}})", R"(name: expected {"contains":"x"}, got "hello")"},
        {R"({"name": {"absent": "ell"}})", R"(name: expected {"absent":"ell"}, got "hello")"},
        {R"({"nothing": {"absent": "x"}})", R"(nothing: expected {"absent":"x"}, got nothing is there)"},
        {R"({"name": {"matches": "^e"}})", R"(name: expected {"matches":"^e"}, got "hello")"},
        {R"({"toolbar": {"count": 1}})", R"(toolbar: expected {"count":1}, got [])"},
        {R"({"toolbar": [1]})", R"(toolbar: expected 1 elements, got 0: [])"},
        {R"({"error": false})", R"(error: expected false, got null)"},
        {R"({"name": {"first": 1}})", R"(name: expected {"first":1}, got "hello")"},
    };
    for (const auto& [expected, line] : unmet) {
        const auto lines = compare(expected);
        ASSERT_EQ(lines.size(), 1u) << expected;
        EXPECT_EQ(lines[0], line);
    }
}

TEST(Expectation, TwoLongTextsAreShownAroundTheirParting) {
    const std::string a(500, 'a'), b(500, 'b'), c(500, 'c');
    const std::string before(39, 'a'), behind(119, 'b'), other(119, 'c');
    const auto line = [&](const Json& expected, const std::string& actual) {
        return mismatches({{"text", expected}}, {{"text", actual}}).at(0);
    };
    EXPECT_EQ(line(a + "." + b, a + "." + c),
              "text: expected …" + before + "." + behind + "b…, got …" + before + "." + other + "c…");
    EXPECT_EQ(line({{"contains", a + "." + b}}, c + a + "." + c),
              "text: expected …" + before + "." + behind + "b…, got …" + before + "." + other + "c…");
    EXPECT_EQ(mismatches({{"text", Json::array()}}, {{"text", {a}}}).at(0),
              "text: expected 0 elements, got 1: [\"" + std::string(118, 'a') + "…");
}

} // namespace
} // namespace ornavel::rehearsal
