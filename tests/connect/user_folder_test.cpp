#include "tests/connect/sending.h"

namespace ornavel::connect {
namespace {

/// What is there after a start with these settings.
class UserFolder : public testing::Test {
protected:
    static constexpr TextView own = u"C:\\Users\\jo\\Brevant\\Ornavel";

    bool is_made(const settings::Key& key, TextView value, TextView folder) {
        rehearsal::Stage stage(R"({"settings": {"Admin Settings": {"SigEmail": "a", "SigWebsite": "b",
                                                                   "StartupSetupWiz": "False"}}, "do": []})");
        settings::save(stage.machine.addin_settings(), key, value);
        Platform platform = platform_of(stage);
        platform.user_folder = Text(user_folder);
        Connect addin{std::move(platform)};
        addin.OnConnection(stage.application(), Connect::at_startup);
        addin.OnStartupComplete();
        addin.OnDisconnection(0);
        return stage.machine.files().folder_exists(folder);
    }

    TextView user_folder = own;
};

TEST_F(UserFolder, IsMadeWhereTheSettingsPutSomethingIntoIt) {
    using namespace settings::admin;
    EXPECT_TRUE(is_made(ApplicationPath, own, own));
    EXPECT_TRUE(is_made(BrowserPath, u"c:\\USERS\\jo\\Brevant\\Ornavel\\Preview", Text(own) + u"\\Preview"));
    EXPECT_TRUE(is_made(ErrorFileLocation, Text(own) + u"\\SupportLog.txt", own));
}

TEST_F(UserFolder, NoOtherFolderIsMade) {
    using namespace settings::admin;
    EXPECT_FALSE(is_made(ApplicationPath, u"C:\\Work", u"C:\\Work"));
    EXPECT_FALSE(is_made(BrowserPath, Text(own) + u"2", Text(own) + u"2"));
    EXPECT_FALSE(is_made(BrowserPath, Text(own) + u"\\..\\..\\Elsewhere", u"C:\\Users\\jo\\Elsewhere"));
    EXPECT_FALSE(
        is_made(ErrorFileLocation, u"C:\\Users\\jo\\Brevant\\SupportLog.txt", u"C:\\Users\\jo\\Brevant"));
}

TEST_F(UserFolder, AMachineThatKnowsNoneMakesNone) {
    user_folder = u"";
    EXPECT_FALSE(is_made(settings::admin::ApplicationPath, own, own));
    EXPECT_FALSE(is_made(settings::admin::ApplicationPath, u"\\Work", u"\\Work"));
}

} // namespace
} // namespace ornavel::connect
