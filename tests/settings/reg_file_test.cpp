#include "settings/reg_file.h"
#include "settings/reg_settings.h"
#include "tests/refusal.h"

#include <gtest/gtest.h>

namespace ornavel::settings {
namespace {

using Kind = RegValue::Kind;

RegFile read_text(std::string_view text) { return read_reg_file(text, windows_1252()); }

std::string utf16(TextView text, bool big_endian) {
    std::string bytes = big_endian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char16_t unit : text) {
        const char low = static_cast<char>(unit & 0xFF), high = static_cast<char>(unit >> 8);
        bytes += big_endian ? high : low;
        bytes += big_endian ? low : high;
    }
    return bytes;
}

std::vector<std::pair<Text, Text>> named(const RegFile& file) {
    std::vector<std::pair<Text, Text>> all;
    for (const FileSetting& setting : settings_of(file))
        all.emplace_back(setting.section + u"/" + setting.name, setting.value);
    return all;
}

using Named = std::vector<std::pair<Text, Text>>;

const std::string admin =
    "[HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel\\Admin Settings]\r\n";

TEST(RegFiles, TextsAreUnescapedAndCommentsPassedOver) {
    const RegFile file = read_text("REGEDIT4\r\n; a comment\r\n\r\n" + admin +
                                   "\"HTM Files Path\"=\"C:\\\\Stationery\" ; where they are\r\n"
                                   "  \"SigFullname\"=\"Jo \\\"the\\\" Marl\xF6w\"\r\n@=\"default\"\r\n");
    EXPECT_TRUE(file.complaints.empty());
    ASSERT_EQ(file.keys.size(), 1U);
    EXPECT_EQ(file.keys[0].values[2].name, u"");
    EXPECT_EQ(file.keys[0].values[0].at, (Place{5, 1}));
    EXPECT_EQ(file.keys[0].values[1].at, (Place{6, 3}));
    EXPECT_EQ(named(file)[0], (std::pair<Text, Text>{u"Admin Settings/HTM Files Path", u"C:\\Stationery"}));
    EXPECT_EQ(named(file)[1].second, u"Jo \"the\" Marlöw");
}

TEST(RegFiles, ContinuedBytesAreTextsInTheVersionsOwnEncoding) {
    const RegFile old =
        read_text("REGEDIT4\n" + admin + "\"BrowserPath\"=hex(2):25,41,\\\n  25,5c,\\\n  e9,00\n");
    EXPECT_EQ(named(old), (Named{{u"Admin Settings/BrowserPath", u"%A%\\é"}}));
    const RegFile young = read_text("Windows Registry Editor Version 5.00\n" + admin +
                                    "\"SigCell\"=hex(1):41,00,e9,00,ac,20,00,00,42,00\n");
    EXPECT_EQ(named(young), (Named{{u"Admin Settings/SigCell", u"Aé€"}}));
}

TEST(RegFiles, VersionFiveIsReadInBothByteOrders) {
    const Text text =
        u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\VB and VBA Program "
        u"Settings\\Ornavel\\User Settings]\r\n\"Template\"=\"ж.htm\"\r\n";
    for (const bool big : {false, true})
        EXPECT_EQ(named(read_text(utf16(text, big))), (Named{{u"User Settings/Template", u"ж.htm"}}));
}

TEST(RegFiles, WhatIsRemovedIsGoneAndTheLastWordCounts) {
    const RegFile file =
        read_text("REGEDIT4\n" + admin + "\"SigFax\"=\"1\"\n\"SigCell\"=\"1\"\n\"Sigfax\"=\"2\"\n" + admin +
                  "\"SigCell\"=-\n");
    EXPECT_EQ(named(file), (Named{{u"Admin Settings/Sigfax", u"2"}}));
    const std::string gone = "[-HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings]\n";
    EXPECT_TRUE(named(read_text("REGEDIT4\n" + admin + "\"SigFax\"=\"1\"\n" + gone)).empty());
    EXPECT_EQ(
        named(read_text("REGEDIT4\n" + admin + "\"SigFax\"=\"1\"\n[-HKEY_CURRENT_USER\\Soft]\n")).size(), 1U);
}

TEST(RegFiles, ARemovedKeyTakesAlongWhatLiesBelowItAndNothingThatOnlyBeginsAlike) {
    const std::string area = "HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel\\";
    const auto key = [&](const std::string& name) { return "[" + area + name + "]\n\"SigFax\"=\"1\"\n"; };
    const RegFile file = read_text("REGEDIT4\n" + key("User") + key("User\\Old") + key("User Settings") +
                                   "[-" + area + "User]\n");
    EXPECT_EQ(named(file), (Named{{u"User Settings/SigFax", u"1"}}));
}

TEST(RegFiles, AKeyMayBeNamedByItsShortRoot) {
    EXPECT_EQ(section_of(u"hkcu\\Software\\VB and VBA Program Settings\\Ornavel\\Admin Settings"),
              u"Admin Settings");
    EXPECT_EQ(section_of(Text(registry_area)), u"");
    EXPECT_EQ(section_of(Text(registry_area) + u"\\"), u"");
    EXPECT_EQ(section_of(Text(registry_area) + u" Settings\\Admin Settings"), std::nullopt);
    EXPECT_EQ(section_of(u"HKEY_LOCAL_MACHINE\\Software"), std::nullopt);
}

TEST(RegFiles, TheWholeAreaMayBeRemoved) {
    const std::string area = "[-HKCU\\Software\\VB and VBA Program Settings\\Ornavel]\n";
    const RegFile file =
        read_text("REGEDIT4\n" + admin + "\"SigFax\"=\"1\"\n" + area + admin + "\"SigCell\"=\"2\"\n");
    EXPECT_EQ(named(file), (Named{{u"Admin Settings/SigCell", u"2"}}));
}

TEST(RegFiles, BytesGoOnBehindCommentsAndTheLastMayHaveOneDigit) {
    const RegFile file =
        read_text("REGEDIT4\n" + admin +
                  "\"BrowserPath\"=hex(2):25 ,\\ ; a percent sign\n ; and the rest\n\t41,25\n"
                  "\"HTM Files Path\"=hex(2):43,3A,5c,6F,9\n\"SigCell\"=hex(1):");
    EXPECT_TRUE(file.complaints.empty());
    EXPECT_EQ(named(file), (Named{{u"Admin Settings/BrowserPath", u"%A%"},
                                  {u"Admin Settings/HTM Files Path", u"C:\\o\t"},
                                  {u"Admin Settings/SigCell", u""}}));
}

TEST(RegFiles, ALineBreakInATextIsWrittenAsALetter) {
    const RegFile file = read_text("REGEDIT4\n" + admin + "\"SigCell\"\t=\t\"a\\r\\nb\" \t");
    EXPECT_TRUE(file.complaints.empty());
    EXPECT_EQ(named(file), (Named{{u"Admin Settings/SigCell", u"a\r\nb"}}));
}

TEST(RegFiles, AKindInBracketsIsReadToTheirEnd) {
    const RegFile file = read_text("REGEDIT4\n" + admin + "\"SigFax\"=hex(b):41,00\n\"SigCell\"=hex(7:41\n");
    ASSERT_EQ(file.complaints.size(), 1U);
    EXPECT_EQ(file.complaints[0].at, (Place{4, 11}));
    EXPECT_TRUE(named(file).empty());
}

TEST(RegFiles, OtherKindsAndTextsWithVariablesThatAreNoPathsReadAsAbsent) {
    const RegFile file = read_text(
        "REGEDIT4\n" + admin + "\"SigFax\"=dword:00000001\n\"SigCell\"=hex(2):41,00\n\"SigEmail\"=hex:41\n");
    EXPECT_TRUE(file.complaints.empty());
    EXPECT_TRUE(named(file).empty());
}

TEST(RegFiles, LinesThatMakeNoSenseAreToldAndPassedOver) {
    const RegFile file =
        read_text("REGEDIT4\n\"early\"=\"1\"\n" + admin + "nonsense\n\"SigFax\"=\"1\" x\n\"SigCell\"=\"2");
    ASSERT_EQ(file.complaints.size(), 4U);
    EXPECT_EQ(file.complaints[0].at, (Place{2, 1}));
    EXPECT_EQ(file.complaints[1].at, (Place{4, 1}));
    EXPECT_EQ(file.complaints[2].at, (Place{5, 14}));
    EXPECT_EQ(file.complaints[3].at, (Place{6, 11}));
}

TEST(RegFiles, AComplaintSaysWhatIsMissing) {
    for (const auto& [line, description, column] :
         {std::tuple{"nonsense", u"This is neither a key nor a value", 1},
          std::tuple{"[HKCU\\Software", u"This key has no closing bracket", 1},
          std::tuple{"\"SigFax\" \"1\"", u"A value's name is followed by \"=\"", 10},
          std::tuple{"\"SigFax\"=", u"This kind of value is unknown", 10},
          std::tuple{"\"SigFax\"=he:41", u"This kind of value is unknown", 10},
          std::tuple{"\"SigFax\"=hex:4g", u"Something follows where the line should end", 15},
          std::tuple{"\"SigFax\"=\"1\\", u"This text has no closing quote", 10}}) {
        const RegFile file = read_text("REGEDIT4\n" + admin + line);
        ASSERT_EQ(file.complaints.size(), 1U) << line;
        EXPECT_EQ(file.complaints[0].description, description);
        EXPECT_EQ(file.complaints[0].at, (Place{3, static_cast<std::size_t>(column)})) << line;
    }
}

TEST(RegFiles, AValueBehindAKeyWithoutABracketBelongsToNone) {
    const RegFile file = read_text("REGEDIT4\n" + admin + "[HKCU\\Software\n\"SigFax\"=\"1\"\n");
    ASSERT_EQ(file.complaints.size(), 2U);
    EXPECT_EQ(file.complaints[1].description, u"A value stands in front of the first key");
    EXPECT_TRUE(named(file).empty());
}

TEST(RegFiles, AFileOfAnotherKindIsRefused) {
    for (const std::string_view text : {"", "<html>", "regedit4\n", "\xEF\xBB\xBFREGEDIT4\n"})
        EXPECT_THROW(read_text(text), FileError) << text;
    EXPECT_EQ(
        refusal_of([] { read_text("<html>"); }),
        u"This is no registry file: it begins neither with \"REGEDIT4\" nor with \"Windows Registry Editor "
        u"Version 5.00\"");
    EXPECT_EQ(refusal_of([] { read_text("\xEF\xBB\xBFREGEDIT4\n"); }),
              u"A registry editor reads no file in UTF-8; save it in UTF-16 (\"Unicode\")");
}

TEST(RegFiles, WhatIsWrittenIsReadAgainInTheVersionThatItNeeds) {
    const auto written = [](TextView value) {
        const std::vector<RegKey> keys{{Text(registry_area) + u"\\Admin Settings",
                                        false,
                                        {{u"SigFullname", Kind::text, Text(value)},
                                         {u"BrowserPath", Kind::expand_text, u"%A%\\" + Text(value)},
                                         {u"SigFax", Kind::removed}}}};
        return write_reg_file(keys, windows_1252());
    };
    for (const TextView value : {TextView(u"\\\"é\""), TextView(u"ж\nx")}) {
        const Named expected{{u"Admin Settings/SigFullname", Text(value)},
                             {u"Admin Settings/BrowserPath", u"%A%\\" + Text(value)}};
        EXPECT_EQ(named(read_text(written(value))), expected);
    }
    EXPECT_TRUE(written(u"é").starts_with("REGEDIT4\r\n"));
    EXPECT_TRUE(written(u"ж").starts_with("\xFF\xFEW"));
}

TEST(RegFiles, ARemovedKeyAndAnUnnamedValueAreWrittenAndOtherKindsAreNot) {
    const std::vector<RegKey> keys{{u"A", true, {}},
                                   {u"B",
                                    false,
                                    {{u"", Kind::text, u"x"},
                                     {u"n", Kind::other},
                                     {u"r", Kind::removed},
                                     {u"p", Kind::expand_text, u"%A%"}}}};
    EXPECT_EQ(write_reg_file(keys, windows_1252()),
              "REGEDIT4\r\n\r\n[-A]\r\n\r\n[B]\r\n@=\"x\"\r\n\"r\"=-\r\n\"p\"=hex(2):25,41,25,00\r\n");
}

} // namespace
} // namespace ornavel::settings
