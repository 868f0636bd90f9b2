#include "connect/connect.h"
#include "tests/connect/staged_platform.h"

#include <gtest/gtest.h>

namespace ornavel::connect {
namespace {

/// Looks where a form would appear, and closes it.
class SeenPlaces final : public forms::Windows {
public:
    forms::Bounds place;

    Answer show(TextView, TextView, Buttons) override { return Answer::ok; }
    void show_modal(forms::Form& form) override {
        place = form.properties.place;
        form.unload();
    }
    std::optional<Text> ask_for_path(const forms::PathQuestion&) override { return {}; }
};

TEST(PreviewPlace, APreviewThatWasLeftOnAScreenToTheLeftAppearsThere) {
    rehearsal::Stage stage(R"({
        "settings": {"Admin Settings": {"SigEmail": "a", "SigWebsite": "b", "StartupSetupWiz": "False",
                                        "HTM Files Path": "C:\\stationery", "AutoPreview": "True"},
                     "User Settings": {"SettingButtonBar": "auto", "Template": "letter.htm", "Signature": "none",
                                       "BrowserLeft": "-12000", "BrowserTop": "-300",
                                       "BrowserWidth": "10170", "BrowserHeight": "6000"}},
        "files": {"C:\\stationery\\letter.htm": "<[#Input your message here#]>\r\n"},
        "items": [{"HTMLBody": "Hello"}],
        "do": []})");
    SeenPlaces windows;
    Connect addin{platform_of(stage, {.windows = &windows})};
    addin.OnConnection(stage.application(), Connect::at_startup);
    addin.OnStartupComplete();
    stage.client.send(*stage.client.items[0]);
    EXPECT_EQ(windows.place.left, -12000);
    EXPECT_EQ(windows.place.top, -300);
    addin.OnDisconnection(0);
}

} // namespace
} // namespace ornavel::connect
