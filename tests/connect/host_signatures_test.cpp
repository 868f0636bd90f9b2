#include "connect/environment.h"
#include "connect/session.h"
#include "tests/connect/staged_platform.h"

#include <gtest/gtest.h>

namespace ornavel::connect {
namespace {

/// The mail client's own signatures, on a Windows that keeps the user's data at a place of its own.
Text text_signature_in(const std::string& version, TextView application_data, TextView folder) {
    rehearsal::Stage stage(R"({"do": [], "host": {"version": ")" + version +
                           R"("}, "settings": {"Admin Settings":
        {"SigFullname": "Jo", "ErrorFileLocation": "C:\\log.txt", "EmailErrorNotify": "False"}}})");
    stage.machine.files().create_folder(folder);
    Platform platform = platform_of(stage);
    platform.application_data = application_data;
    Session session(std::move(platform));
    session.host.oHostApp = stage.application();
    write_signature_files(session);
    const Text file = Text(folder) + u"\\Ornavel Text Signature.txt";
    return stage.machine.files().file_exists(file) ? u"written" : u"not written";
}

constexpr TextView of_always = u"C:\\Documents and Settings\\jo\\Application Data\\Microsoft\\Signatures";
constexpr TextView of_this_windows = u"D:\\Profiles\\jo\\Roaming";
constexpr TextView below_it = u"D:\\Profiles\\jo\\Roaming\\Microsoft\\Signatures";

TEST(HostSignatures, UpTo2003LieWhereTheyAlwaysHave) {
    for (const char* version : {"9.0.0.3821", "11.0.5608", ""}) {
        EXPECT_EQ(text_signature_in(version, of_this_windows, of_always), u"written") << version;
        EXPECT_EQ(text_signature_in(version, of_this_windows, below_it), u"not written") << version;
    }
}

TEST(HostSignatures, From2007OnLieBelowTheUsersApplicationData) {
    for (const char* version : {"12.0.4518", "14.0.4760", "16.0"}) {
        EXPECT_EQ(text_signature_in(version, of_this_windows, below_it), u"written") << version;
        EXPECT_EQ(text_signature_in(version, of_this_windows, of_always), u"not written") << version;
    }
}

TEST(HostSignatures, LieWhereTheyAlwaysHaveWhenWindowsTellsNoPlace) {
    EXPECT_EQ(text_signature_in("16.0", u"", of_always), u"written");
}

} // namespace
} // namespace ornavel::connect
