#include "connect/reasons.h"

#include "base/encoding.h"

#include <gtest/gtest.h>

namespace ornavel::connect {
namespace {

/// What people read where it isn't known what the gate looked at, written down a second time.
constexpr std::pair<TextView, TextView> words_without_values[] = {
    {u"entry mode", u"the mode (SettingButtonBar) is not “auto”"},
    {u"already tagged", u"it carries a user property"},
    {u"message class", u"its class is not IPM.Note"},
    {u"resend from the Outbox", u"it carries the stamp of an earlier send"},
    {u"resend from Sent Items", u"it carries the stamp of an earlier send"},
    {u"message class again", u"its class is not IPM.Note"},
    {u"personal stationery", u"WipeoutPersonalStationery is “True”, and the user has chosen stationery"},
    {u"internal mail", u"SkipInternal is “1”, and rich text is then left as it is"},
    {u"internal mail", u"SkipInternal is “1”, and every recipient counts as internal"},
    {u"send as is", u"SendAsIs was “True”, for this one message"},
    {u"mode off", u"the mode (SettingButtonBar) is not “auto”"},
    {u"preview stamp", u"its BillingInformation is “Preview”"},
    {u"preview send stamp", u"the preview sends it, composed already"},
    {u"reply test", u"Reply as is is “1”, and it is a reply"},
    {u"other modes", u"the mode (SettingButtonBar) is not “auto”"},
    {u"default template", u"no default template is chosen"},
    {u"default signature", u"no default signature is chosen"},
    {u"auto preview", u"AutoPreview is “True”, and the user closed the preview without sending"},
    {u"composition", u"the template was refused"},
};

TEST(Reasons, StandInTheGatesOrderInWordsForPeople) {
    ASSERT_EQ(reasons().size(), std::size(words_without_values));
    for (std::size_t i = 0; i < reasons().size(); ++i) {
        EXPECT_EQ(to_utf8(reasons()[i].gate), to_utf8(words_without_values[i].first));
        EXPECT_EQ(to_utf8(reasons()[i].without), to_utf8(words_without_values[i].second));
    }
}

TEST(Reasons, HaveAPlaceForAValueWhereTheyShowOne) {
    for (const Reason& reason : reasons())
        EXPECT_EQ(reason.words.find(u"{}") != TextView::npos, reason.shows != Reason::Shows::nothing)
            << to_utf8(reason.words);
}

TEST(Reasons, ThatShowNoValueReadAlikeWithoutOne) {
    for (const Reason& reason : reasons()) {
        if (reason.shows != Reason::Shows::nothing) continue;
        EXPECT_TRUE(reason.without.starts_with(reason.words)) << to_utf8(reason.words);
    }
}

} // namespace
} // namespace ornavel::connect
