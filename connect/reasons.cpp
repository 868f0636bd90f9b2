#include "connect/reasons.h"

#include "settings/catalogue.h"

namespace ornavel::connect {
namespace {

using namespace settings;
using enum Reason::Shows;

constexpr TextView mode_words = u"the mode (SettingButtonBar) is {}, and only “auto” dresses";
constexpr TextView no_mode = u"the mode (SettingButtonBar) is not “auto”";
constexpr TextView class_words = u"its class is {}, and only IPM.Note is dressed";
constexpr TextView no_class = u"its class is not IPM.Note";
constexpr TextView folder_words = u"it lies in the folder {} and carries the stamp of an earlier send";
constexpr TextView no_folder = u"it carries the stamp of an earlier send";

constexpr Reason every_reason[] = {
    {u"entry mode", mode_words, no_mode, setting, &user::SettingButtonBar},
    {u"already tagged", u"it carries a user property", u"it carries a user property"},
    {u"message class", class_words, no_class, message_class},
    {u"resend from the Outbox", folder_words, no_folder, folder, &admin::SuppressResendsOutbox},
    {u"resend from Sent Items", folder_words, no_folder, folder, &admin::SuppressResendsSentItems},
    {u"message class again", class_words, no_class, message_class},
    {u"personal stationery", u"WipeoutPersonalStationery is “True”, and the user has chosen stationery",
     u"WipeoutPersonalStationery is “True”, and the user has chosen stationery", nothing,
     &admin::WipeoutPersonalStationery},
    {u"internal mail", u"SkipInternal is {}, and rich text is then left as it is",
     u"SkipInternal is “1”, and rich text is then left as it is", setting, &admin::SkipInternal, true},
    {u"internal mail", u"SkipInternal is {}, and every recipient counts as internal",
     u"SkipInternal is “1”, and every recipient counts as internal", setting, &admin::SkipInternal},
    {u"send as is", u"SendAsIs was “True”, for this one message",
     u"SendAsIs was “True”, for this one message", nothing, &user::SendAsIs},
    {u"mode off", mode_words, no_mode, setting, &user::SettingButtonBar},
    {u"preview stamp", u"its BillingInformation is “Preview”", u"its BillingInformation is “Preview”"},
    {u"preview send stamp", u"the preview sends it, composed already",
     u"the preview sends it, composed already"},
    {u"reply test", u"Reply as is is “1”", u"Reply as is is “1”, and it is a reply", nothing,
     &user::ReplyAsIs},
    {u"other modes", mode_words, no_mode, setting, &user::SettingButtonBar},
    {u"default template", u"no default template is chosen (Template is {})", u"no default template is chosen",
     setting, &user::Template},
    {u"default signature", u"no default signature is chosen (Signature is {})",
     u"no default signature is chosen", setting, &user::Signature},
    {u"auto preview", u"AutoPreview is “True”, and the user closed the preview without sending",
     u"AutoPreview is “True”, and the user closed the preview without sending", nothing, &admin::AutoPreview},
    {u"composition", u"the template was refused", u"the template was refused"},
};

} // namespace

std::span<const Reason> reasons() { return every_reason; }

} // namespace ornavel::connect
