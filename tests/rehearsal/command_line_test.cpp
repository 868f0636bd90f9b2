#include "rehearsal/native/command_line.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

std::string refusal(const std::vector<std::string>& words) {
    try {
        read_command_line(words);
    } catch (const Unusable& error) {
        return error.what();
    }
    return "accepted";
}

TEST(CommandLine, PlaysScenariosWithTheRealDllUnlessTold) {
    const CommandLine line = read_command_line({"a.json", "b.json"});
    EXPECT_EQ(line.binding, Binding::wine);
    EXPECT_EQ(line.out, "");
    EXPECT_EQ(line.scenarios, (std::vector<std::string>{"a.json", "b.json"}));
}

TEST(CommandLine, AValueFollowsItsOptionOrAnEqualsSign) {
    for (const auto& words : {std::vector<std::string>{"--binding", "native", "--out", "o=1.json", "a.json"},
                              std::vector<std::string>{"a.json", "--binding=native", "--out=o=1.json"}}) {
        const CommandLine line = read_command_line(words);
        EXPECT_EQ(line.binding, Binding::native);
        EXPECT_EQ(line.out, "o=1.json");
        EXPECT_EQ(line.scenarios, std::vector<std::string>{"a.json"});
    }
}

TEST(CommandLine, KnowsThreeBindings) {
    EXPECT_EQ(read_command_line({"--binding=native", "a"}).binding, Binding::native);
    EXPECT_EQ(read_command_line({"--binding=wine", "a"}).binding, Binding::wine);
    EXPECT_EQ(read_command_line({"--binding=both", "a"}).binding, Binding::both);
    EXPECT_EQ(refusal({"--binding=all", "a"}), "--binding: expected native, wine or both");
}

TEST(CommandLine, HelpNeedsNothingElse) {
    EXPECT_TRUE(read_command_line({"--help"}).help);
    EXPECT_TRUE(read_command_line({"--nonsense", "--help"}).help);
    EXPECT_FALSE(read_command_line({"a.json"}).help);
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    EXPECT_EQ(refusal({"--colour=red", "a"}), "--colour: unknown argument");
    EXPECT_EQ(refusal({"-b", "a"}), "-b: unknown argument");
    EXPECT_EQ(refusal({"a", "--out"}), "--out: needs a value");
    EXPECT_EQ(refusal({"--out=", "a"}), "--out: needs a value");
    EXPECT_TRUE(refusal({"--binding=native"}).starts_with("usage: rehearse "));
}

} // namespace
} // namespace ornavel::rehearsal
