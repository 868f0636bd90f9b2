#include "host/versions.h"

#include "tests/rehearsal/stage.h"

#include <gtest/gtest.h>

namespace ornavel::host {
namespace {

TEST(Versions, TheNumberInFrontIsTheVersion) {
    EXPECT_EQ(major_version(u"9.0.0.3821"), 9);
    EXPECT_EQ(major_version(u"11abc"), 11);
    EXPECT_EQ(major_version(u"16.0"), 16);
    EXPECT_EQ(major_version(u"2147483648.0"), 21);
    for (const TextView odd : {u"", u"abc", u" 16.0", u"-16", u".16"}) EXPECT_EQ(major_version(odd), 0);
    EXPECT_EQ(major_version(Application()), 0);
}

/// A message in front of a mail client of some version.
rehearsal::Stage stage_with(const std::string& version, const std::string& item) {
    return rehearsal::Stage(R"({"host": {"version": ")" + version + R"("}, "items": [{)" + item +
                            R"(}], "do": []})");
}

int kind_in(const std::string& version, const std::string& item) {
    rehearsal::Stage stage = stage_with(version, item);
    return kind_of(stage.item(0), stage.application());
}

TEST(Versions, UpTo2003TheEditorTellsTheKindOfAMessage) {
    for (const char* version : {"9.0.0.3821", "10.0.2627", "11.0.5608", "", "abc"})
        for (const int editor : {0, 1, 2, 3, 4, 7})
            EXPECT_EQ(kind_in(version, R"("BodyFormat": 1, "EditorType": )" + std::to_string(editor)), editor)
                << version;
}

TEST(Versions, From2007OnTheBodyTellsItAndAnythingUnknownIsHtml) {
    struct Case {
        int format, kind;
    };
    constexpr Case cases[] = {{1, plain_text_editor}, {2, html_editor}, {3, rich_text_editor},
                              {0, html_editor},       {4, html_editor}, {-1, html_editor}};
    for (const char* version : {"12.0.4518", "14.0.4760", "15.0.4420", "16.0", "21.0"})
        for (const auto& [format, kind] : cases)
            EXPECT_EQ(kind_in(version, R"("EditorType": 1, "BodyFormat": )" + std::to_string(format)), kind)
                << version << ", " << format;
}

TEST(Versions, ABodyFormatThatCannotBeReadIsHtml) {
    rehearsal::Stage stage(R"({"host": {"version": "16.0"}, "items": [{"BodyFormat": 1}],
        "fail": [{"member": "MailItem.BodyFormat"}], "do": []})");
    EXPECT_EQ(kind_of(stage.item(0), stage.application()), html_editor);
}

TEST(Versions, AMailClientThatDoesNotTellItsVersionCountsAsAnOldOne) {
    rehearsal::Stage stage(R"({"host": {"version": "11.0"}, "items": [{"EditorType": 3}],
        "fail": [{"member": "Application.Version"}], "do": []})");
    EXPECT_EQ(kind_of(stage.item(0), stage.application()), rich_text_editor);
}

TEST(Versions, AWrappedMessageHasTheKindOfTheOneInside) {
    rehearsal::Stage stage = stage_with("16.0", R"("BodyFormat": 1)");
    const auto wrapped = SafeMailItem::around(stage.client, stage.item(0));
    EXPECT_EQ(kind_of(wrapped, stage.application()), plain_text_editor);
}

} // namespace
} // namespace ornavel::host
