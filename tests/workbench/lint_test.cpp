#include "base/encoding.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "workbench/lint/linter.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ornavel::workbench {
namespace {

/// A drive with the stationery of the rules' examples.
class Linting : public testing::Test {
protected:
    Linting() {
        disk.folders = {u"C:\\", u"D:\\", u"C:\\Stationery", u"C:\\Stationery\\Templates",
                        u"C:\\Stationery\\Pictures"};
        disk.contents[u"C:\\Stationery\\Pictures\\logo.gif"] = "GIF89a";
        disk.contents[u"C:\\Stationery\\Pictures\\large.gif"] = std::string(200'001, 'x');
        disk.contents[u"D:\\mine\\logo.gif"] = "GIF89a";
    }

    std::vector<Finding> check(Role role, const Example& example) {
        const Drives drives(disk);
        std::optional<SettingsFile> file;
        if (!example.settings.empty()) {
            disk.contents[u"C:\\s.reg"] = registry_file(example.settings);
            file = load_settings(disk, u"C:\\s.reg");
        }
        const settings::MemoryStore defaults;
        const Ground ground{file ? &*file : nullptr, file ? file->store : defaults, drives, clock};
        if (role == Role::settings) return lint_settings(ground);
        const Text path = u"C:\\Stationery\\Templates\\page.htm";
        disk.contents[path] = example.page;
        return lint_file(ground, path, disk.contents[path], role);
    }

    std::vector<Finding> check(Role role, std::string_view page, std::string_view settings = {}) {
        return check(role, Example{page, settings});
    }

    static const Finding* find(const std::vector<Finding>& findings, std::string_view rule) {
        const auto found = std::ranges::find(findings, rule, &Finding::rule);
        return found == findings.end() ? nullptr : &*found;
    }

    /// The message of the only finding by that rule.
    static std::string message_of(const std::vector<Finding>& findings, std::string_view rule) {
        const Finding* found = find(findings, rule);
        return found ? to_utf8(found->message) : "nothing";
    }

    MemoryFiles disk;
    FixedClock clock;
};

TEST_F(Linting, EachRuleFindsItsBadExampleAndLeavesTheGoodOneAlone) {
    for (const Rule& rule : rules()) {
        EXPECT_TRUE(find(check(rule.role, rule.bad), rule.name)) << rule.name;
        EXPECT_FALSE(find(check(rule.role, rule.good), rule.name)) << rule.name;
    }
}

TEST_F(Linting, AFindingHasItsPlaceSeverityAndAWayToMendIt) {
    const auto findings = check(Role::signature, "<b>Jo</b><br>\r\n  [#SigFulname#]<br>\r\n");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].at, (Place{2, 3}));
    EXPECT_EQ(findings[0].severity, Severity::error);
    EXPECT_EQ(findings[0].mend, u"Did you mean [#SigFullname#]?");
    EXPECT_EQ(findings[0].file, u"C:\\Stationery\\Templates\\page.htm");
}

TEST_F(Linting, ACommentSilencesItsRuleAlone) {
    const auto findings =
        check(Role::signature, "<!-- ornavel-lint: allow field-case -->[#sigemail#][#SigNix#]");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].rule, "field-unknown");
}

TEST_F(Linting, SaysWhetherTheAddInAsksAboutAScript) {
    constexpr std::string_view marker = "[#Input your message here#]";
    const auto message = [&](const std::string& script) {
        return message_of(check(Role::letterhead, std::string(marker) + script), "script");
    };
    EXPECT_NE(message("<script>x</script>").find("asks before each"), std::string::npos);
    EXPECT_NE(message("<SCRIPT>x</SCRIPT>").find("asks before each"), std::string::npos);
    for (const char* quiet :
         {"<script>x</Script>", "<script src=x>", "<p onclick=\"go()\">", "<a href=' java\nscript:x'>"})
        EXPECT_NE(message(quiet).find("lets it through"), std::string::npos) << quiet;
}

TEST_F(Linting, ALineThatStaysIsFoundForEachKindOfField) {
    for (const char* stays : {"Direct: [#SigTelephone#]<br>", "[#SigPosition#], Marlow<br>",
                              "<li>Fax [#SigFax#]</li>", "[#SigCell#]&nbsp;<br>"})
        EXPECT_TRUE(find(check(Role::signature, stays), "field-rest")) << stays;
    for (const char* goes :
         {"Tel: [#SigTelephone#]<br>", "[#SigPosition#]<BR>", "<FONT>[#SigPosition#]</FONT><BR>",
          "[#SigFaxLabel#] [#SigFax#]<BR>", "[#SigCell#]"})
        EXPECT_FALSE(find(check(Role::signature, goes), "field-rest")) << goes;
}

TEST_F(Linting, AProposedSpellingGoesItself) {
    for (const char* stays :
         {"Telefax: [#SigFax#]<br>", "Mobile [#SigCell#]<br>", "Direct: [#SigTelephone#]<br>"}) {
        const auto findings = check(Role::signature, stays);
        const Finding* found = find(findings, "field-rest");
        ASSERT_TRUE(found) << stays;
        const Text& mend = found->mend;
        const auto begin = mend.find(u"written as ") + 11, end = mend.find(u" goes with its value");
        const std::string proposed = to_utf8(mend.substr(begin, end - begin));
        EXPECT_FALSE(find(check(Role::signature, proposed), "field-rest")) << proposed;
    }
}

TEST_F(Linting, AnEmptyValueWithoutASpellingThatGoesIsToldOnlyWhereItIsEmpty) {
    constexpr std::string_view page = "[#SigAddress3#]<br>";
    EXPECT_TRUE(find(check(Role::signature, page, "[Admin Settings]\n\"SigEmail\"=\"x\"\n"), "field-rest"));
    EXPECT_FALSE(
        find(check(Role::signature, page, "[Admin Settings]\n\"SigAddress3\"=\"x\"\n"), "field-rest"));
    EXPECT_FALSE(find(check(Role::signature, page), "field-rest"));
}

TEST_F(Linting, TheSwitchThatBreaksALetterheadIsNamed) {
    const auto message = [&](const char* page, const char* settings) {
        return message_of(check(Role::signature, page, settings), "clean-up");
    };
    EXPECT_NE(message("<div>Jo</div>", "[User Settings]\n\"WipeoutDivTag\"=\"True\"\n").find("WipeoutDivTag"),
              std::string::npos);
    EXPECT_NE(message("a size=3", "[Admin Settings]\n\"WipeOutFontControl\"=\"True\"\n").find("xsize=3"),
              std::string::npos);
    EXPECT_NE(message("file://x", "[User Settings]\n\"RTFOnly\"=\"True\"\n").find("in every message"),
              std::string::npos);
    EXPECT_EQ(message("<div>Jo</div>", "[User Settings]\n\"WipeoutDivTag\"=\"true\"\n"), "nothing");
}

TEST_F(Linting, UserCodesThatHitAFieldAreFound) {
    const auto findings = check(Role::settings, "",
                                "[Template Settings]\n\"UserCode1\"=\"Sig\"\n\"UserSwap1\"=\"Signature\"\n");
    EXPECT_NE(message_of(findings, "value-is-pattern").find("UserCode1"), std::string::npos);
}

TEST_F(Linting, AKeyInAnotherSectionIsSentHome) {
    const auto findings = check(Role::settings, "", "[User Settings]\n\"AutoPreview\"=\"True\"\n");
    EXPECT_EQ(message_of(findings, "setting-unknown"),
              "User Settings/AutoPreview is never read: it belongs to Admin Settings");
}

TEST_F(Linting, SectionsOfProfilesAreKnown) {
    const char* settings = "[User Settings]\n\"SignatureList\"=\"Main;Sales\"\n[Sales]\n\"SigFax\"=\"1\"\n";
    EXPECT_EQ(message_of(check(Role::settings, "", settings), "setting-unknown"), "nothing");
}

TEST_F(Linting, PathsThatCannotBeToldAreLeftAlone) {
    const char* settings =
        "[Admin Settings]\n\"HTM Files Path\"=\"Q:\\\\x\"\n\"Signatures Path\"=\"\\\\\\\\server\\\\x\"\n"
        "\"ErrorFileLocation\"=\"C:\\\\Stationery\\\\new.log\"\n\"Help\"=\"http://x/\"\n";
    EXPECT_EQ(message_of(check(Role::settings, "", settings), "path-missing"), "nothing");
}

TEST_F(Linting, UnmarkedUtf16IsNamedAndNothingElse) {
    std::string bytes;
    for (const char unit : std::string_view("<body>[#Input your message here#]</body>"))
        bytes += {unit, '\0'};
    const auto findings = check(Role::letterhead, bytes);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].rule, "charset");
    EXPECT_FALSE(is_binary(bytes));
    EXPECT_TRUE(is_binary(std::string_view("GIF\0\1\2x", 7)));
}

TEST_F(Linting, WhatAFileIsFollowsFromTheFoldersOfTheSettings) {
    disk.contents[u"C:\\s.reg"] =
        registry_file("[Admin Settings]\n\"HTM Files Path\"=\"C:\\\\Stationery\\\\Templates\"\n"
                      "\"Signatures Path\"=\"C:\\\\Stationery\\\\Signatures\"\n");
    const SettingsFile file = load_settings(disk, u"C:\\s.reg");
    const Drives drives(disk);
    const Ground ground{&file, file.store, drives, clock};
    const auto role = [&](TextView path) { return role_of(ground, path, u"", {}).role; };
    EXPECT_EQ(role(u"c:/stationery/templates/x.htm"), Role::letterhead);
    EXPECT_EQ(role(u"C:\\Stationery\\Signatures\\x.htm"), Role::signature);
    EXPECT_EQ(role(u"C:\\Stationery\\Templates\\x.txt"), Role::boilerplate);
    EXPECT_TRUE(role_of(ground, u"D:\\x.htm", u"", {}).guessed);
    EXPECT_EQ(role_of(ground, u"D:\\x.htm", u"[#Input your message here#]", {}).role, Role::letterhead);
}

} // namespace
} // namespace ornavel::workbench
