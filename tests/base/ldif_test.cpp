#include "base/ldif.h"

#include <gtest/gtest.h>

namespace ornavel {
namespace {

std::vector<LdifEntry> entries_of(std::string_view bytes) {
    LdifReader reader(bytes);
    std::vector<LdifEntry> entries;
    for (LdifEntry entry; reader.next(entry);) entries.push_back(entry);
    return entries;
}

using Attributes = std::vector<std::pair<Text, Text>>;

TEST(Ldif, EntriesHoldTheirAttributesInOrder) {
    const auto entries = entries_of(
        "version: 1\r\n\r\ndn: cn=Jo\r\ncn: Jo\r\nmail:jo@example.com\r\n\r\n\r\ndn: cn=Al\r\ncn: Al");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].attributes,
              (Attributes{{u"dn", u"cn=Jo"}, {u"cn", u"Jo"}, {u"mail", u"jo@example.com"}}));
    EXPECT_EQ(entries[0].line, 3U);
    EXPECT_EQ(entries[1].line, 8U);
}

TEST(Ldif, FoldedLinesCommentsAndBase64AreUnderstood) {
    const auto entries =
        entries_of("# people\n of the studio\ndn: cn=Jo\nstreet: 14 Orch\n ard Lane\ncn:: SsO2cmc=\n"
                   "photo:< file:///tmp/jo.jpg\n");
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].attributes,
              (Attributes{{u"dn", u"cn=Jo"}, {u"street", u"14 Orchard Lane"}, {u"cn", u"J\u00F6rg"}}));
}

TEST(Ldif, BlanksAroundAValueAMarkInFrontAndTheEndOfAChangeAreNoPartOfIt) {
    const auto entries = entries_of("\xEF\xBB\xBF"
                                    "dn: cn=Jo\n-\ncn:   Jo\ntitle:  \nsn:: TWFy  \no::TWFy\n");
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(
        entries[0].attributes,
        (Attributes{{u"dn", u"cn=Jo"}, {u"cn", u"Jo"}, {u"title", u""}, {u"sn", u"Mar"}, {u"o", u"Mar"}}));
}

TEST(Ldif, AnErrorHasItsPlaceAndItsWords) {
    struct Refused {
        std::string_view text;
        Place place;
        TextView words;
    };
    for (const auto& [text, place, words] :
         {Refused{"dn: x\nnonsense\n", {2, 1}, u"This line has no colon"},
          Refused{"dn: x\ncn:: ???\n", {2, 5}, u"This value is no base64"}}) {
        try {
            entries_of(text);
            ADD_FAILURE() << text;
        } catch (const FileError& error) {
            EXPECT_EQ(error.at(), place) << text;
            EXPECT_EQ(error.description(), words) << text;
        }
    }
}

TEST(Ldif, Base64IsRefusedWhereItIsNone) {
    EXPECT_EQ(from_base64("TWFy"), "Mar");
    EXPECT_EQ(from_base64("TWFy "), "Mar");
    EXPECT_EQ(from_base64("TWE="), "Ma");
    EXPECT_EQ(from_base64("TQ=="), "M");
    EXPECT_EQ(from_base64(""), "");
    for (const char* text : {"T", "TW", "T===", "TW\xC3\xA9=", "TQ==TQ=="})
        EXPECT_FALSE(from_base64(text)) << text;
}

} // namespace
} // namespace ornavel
