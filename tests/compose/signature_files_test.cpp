#include "compose/signature_files.h"

#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_reports.h"

#include <gtest/gtest.h>

namespace ornavel::compose {
namespace {

using namespace settings;

TEST(RichTextBytes, WhatTheCodePageLacksIsANumberOf16BitsWithItsSign) {
    EXPECT_EQ(encode_rich_text(u"{\\rtf1 a}", windows_1252()), "{\\rtf1 a}");
    EXPECT_EQ(encode_rich_text(u"\u00fc\u20ac", windows_1252()), "\xfc\x80");
    EXPECT_EQ(encode_rich_text(u"\u00fc\u0394", windows_1252()), "\xfc\\u916?");
    EXPECT_EQ(encode_rich_text(u"\u8000", windows_1252()), "\\u-32768?");
    EXPECT_EQ(encode_rich_text(u"\U0001F642", windows_1252()), "\\u-10179?\\u-8638?");
}

TEST(TextSignature, TheLeftColumnIsPaddedTo45) {
    MemoryStore store;
    save(store, admin::SigWebsite, u"www");
    for (const std::size_t length : {0U, 1U, 44U, 45U, 46U}) {
        save(store, admin::SigOrganizationName, Text(length, u'x'));
        const Text line = lines_of(two_column_signature(store))[1];
        EXPECT_EQ(line, Text(length, u'x') + Text(length < 45 ? 45 - length : 0, u' ') + u"www");
    }
}

TEST(PhoneLabels, FollowTheNumberAndTheUsersLabel) {
    struct Case {
        TextView number, label, expected;
    };
    constexpr Case cases[] = {
        {u"", u"", u" x"}, {u"", u"L", u" x"}, {u"1", u"", u"WORD x"}, {u"1", u"L", u"L x"}};
    struct Line {
        TextView word;
        const TextKey &number, &label;
    };
    const Line lines[] = {{u"Cell:", admin::SigCell, admin::SigCellLabel},
                          {u"Fax:", admin::SigFax, admin::SigFaxLabel},
                          {u"Telephone:", admin::SigTelephone, admin::SigTelephoneLabel}};
    for (const Line& line : lines)
        for (const Case& test : cases) {
            MemoryStore store;
            save(store, line.number, test.number);
            save(store, line.label, test.label);
            EXPECT_EQ(with_phone_labels(Text(line.word) + u" x", store),
                      replace_all(Text(test.expected), u"WORD", line.word));
        }
}

/// A setting names the folder in every test.
Text nowhere() { throw Failure(u"Nobody asks for it"); }

TEST(SignatureFiles, ATextThatGrowsWithoutBoundIsLoggedAndTheOthersGoOn) {
    MemoryStore store;
    MemoryFiles files;
    RecordingReports reports;
    files.folders.insert(u"C:\\target\\");
    save(store, admin::OutlookSignaturePath, u"C:\\target");
    save(store, admin::SignaturesPath, u"C:\\source");
    save(store, admin::SigCell, u"1");
    save(store, admin::SigCellLabel, Text(1 << 20, u'x'));
    Text many;
    for (int i = 0; i < 100; ++i) many += u"Cell:";
    files.contents[u"C:\\source\\Many_template.htm"] = to_utf8(many);
    files.contents[u"C:\\source\\One_template.htm"] = "one";
    files.contents[u"C:\\target\\Many.html"] = "older";
    write_signature_files(store, files, nowhere, reports);
    ASSERT_EQ(reports.entries.size(), 1u);
    EXPECT_EQ(reports.entries[0].section, u"SignatureFile_Err");
    EXPECT_EQ(files.contents[u"C:\\target\\Many.html"], "older");
    EXPECT_EQ(files.contents[u"C:\\target\\One.html"], "one");
}

TEST(SignatureFiles, NobodyEverSeesHalfOfOne) {
    MemoryStore store;
    MemoryFiles files;
    RecordingReports reports;
    files.folders.insert(u"C:\\target\\");
    files.refused.insert(u"C:\\target\\A.html.new"); // no room for it
    save(store, admin::OutlookSignaturePath, u"C:\\target");
    save(store, admin::SignaturesPath, u"C:\\source");
    files.contents[u"C:\\source\\A_template.htm"] = "new";
    files.contents[u"C:\\target\\A.html"] = "older";
    files.contents[u"C:\\target\\A.htm"] = "twin";
    write_signature_files(store, files, nowhere, reports);
    EXPECT_EQ(files.contents[u"C:\\target\\A.html"], "older");
    EXPECT_EQ(files.contents[u"C:\\target\\A.htm"], "twin");
    EXPECT_EQ(reports.entries.size(), 1u);
}

} // namespace
} // namespace ornavel::compose
