#include "rehearsal/notes.h"

#include "base/nearest.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

using Lines = std::vector<std::string>;

Lines notes(const std::string& members, const char* outcome = R"({"error": null, "windows": []})") {
    const std::string json = "{\"do\": [], " + members + "}";
    return notes_on(read_scenario(parse_json(json, "x"), "x", Binding::native), Json::parse(outcome));
}

TEST(Nearest, IsTheNameWithTheFewestOtherLetters) {
    const Text names[] = {u"Template", u"Templates Path", u"Signature"};
    EXPECT_EQ(nearest(u"Templat", names), u"Template");
    EXPECT_EQ(nearest(u"Tempalte", names), u"Template");
    EXPECT_EQ(nearest(u"SIGNATURES", names), u"Signature");
    EXPECT_EQ(nearest(u"Signature", names), u"Signature");
    EXPECT_EQ(nearest(u"abcd", std::vector<Text>{u"abce", u"bcd"}), u"abce");
    EXPECT_EQ(nearest(u"abcdef", std::vector<Text>{u"abcxyz"}), u"abcxyz");
    EXPECT_FALSE(nearest(u"abcdef", std::vector<Text>{u"abwxyz"}));
    EXPECT_FALSE(nearest(u"abcdef", std::vector<Text>{u"wxyzef"}));
    EXPECT_EQ(nearest(u"abc", std::vector<Text>{u"abcxy"}), u"abcxy");
    EXPECT_EQ(nearest(u"abcxy", std::vector<Text>{u"abc"}), u"abc");
    EXPECT_FALSE(nearest(u"x", std::vector<Text>{u"xyz"}));
    EXPECT_FALSE(nearest(u"Marketing", names));
    EXPECT_FALSE(nearest(u"", {}));
}

TEST(Notes, NothingIsSaidOfSettingsThatThereAre) {
    EXPECT_EQ(
        notes(R"("settings": {"user settings": {"TEMPLATE": ""}, "Admin Settings": {"HTM Files Path": ""}})"),
        Lines());
}

TEST(Notes, AnUnknownSettingIsNotedWithTheNearestName) {
    EXPECT_EQ(notes(R"("settings": {"User Settings": {"Templat": "a.htm"}})"),
              Lines{R"(settings.User Settings.Templat: no such setting; did you mean "Template"?)"});
    EXPECT_EQ(notes(R"("settings": {"User Settings": {"Colour of the sky": "blue"}})"),
              Lines{"settings.User Settings.Colour of the sky: no such setting"});
}

TEST(Notes, ASettingInAnotherSectionThanItsOwnIsNotedWithItsOwn) {
    EXPECT_EQ(
        notes(R"("settings": {"User Settings": {"UseRedemption": "True"}})"),
        Lines{
            R"(settings.User Settings.UseRedemption: no such setting; did you mean "UseRedemption" in "Admin Settings"?)"});
}

TEST(Notes, AMisspelledSectionIsNotedOnce) {
    EXPECT_EQ(notes(R"("settings": {"User Setting": {"Template": "", "Nothing": ""}})"),
              Lines{R"(settings.User Setting: no such section; did you mean "User Settings"?)"});
}

TEST(Notes, ASectionOfTheUsersOwnMayHoldNamedFields) {
    EXPECT_EQ(notes(R"("settings": {"Jo abroad": {"SigTelephone": "1", "SigFullname": "Jo"}})"), Lines());
    EXPECT_EQ(notes(R"("settings": {"Jo abroad": {"SigTelefone": "1"}})"),
              Lines{R"(settings.Jo abroad.SigTelefone: no such setting; did you mean "SigTelephone"?)"});
}

TEST(Notes, SettingsThatAnAdministratorChangesAreLookedAtToo) {
    const std::string json = R"({"do": ["connect", {"set": {"User Settings": {"Templat": ""}}}]})";
    EXPECT_EQ(notes_on(read_scenario(parse_json(json, "x"), "x", Binding::native),
                       Json::parse(R"({"error": null, "windows": []})")),
              Lines{R"(do[1].set.User Settings.Templat: no such setting; did you mean "Template"?)"});
}

const std::string user =
    R"("user": [{"at": "frmMessage"}, {"at": "Ornavel Security warning", "answer": "Yes"}])";

TEST(Notes, AnEntryOfTheUserThatWasUsedIsNotNoted) {
    EXPECT_EQ(
        notes(
            user,
            R"({"error": null, "windows": [{"form": "frmMessage"}, {"message box": "Ornavel Security warning"}]})"),
        Lines());
}

TEST(Notes, AnUnusedEntryOfTheUserIsNotedWithTheWindowThatWasMeant) {
    EXPECT_EQ(notes(user, R"({"error": null, "windows": [{"form": "frmMessage"}]})"),
              Lines{R"(user[1]: "Ornavel Security warning" did not appear)"});
    EXPECT_EQ(
        notes(user, R"({"error": null, "windows": [{"form": "frmMessage"},
                              {"message box": "Ornavel Security Warnings", "unexpected": true}]})"),
        Lines{
            R"(user[1]: "Ornavel Security warning" did not appear; did you mean "Ornavel Security Warnings"?)"});
}

TEST(Notes, AnUnusedEntryIsMeantWhereAWindowIsToComeUnexpected) {
    EXPECT_EQ(notes(user + R"(, "expect": {"windows": [{"unexpected": true}]})"), Lines());
    EXPECT_EQ(notes(user + R"(, "expect": {"windows": [{"unexpected": false}]})").size(), 2u);
}

TEST(Notes, NothingIsSaidOfEntriesWhereTheScenarioDidNotComeToItsEnd) {
    EXPECT_EQ(notes(user, R"({"error": "the add-in crashed", "windows": []})"), Lines());
}

} // namespace
} // namespace ornavel::rehearsal
