#include "tests/as_written.h"
#include "tests/connect/sending.h"

#include "base/encoding.h"
#include "connect/send_pipeline.h"
#include "connect/session.h"
#include "host/stamps.h"

#include <algorithm>

namespace ornavel::connect {
namespace {

using namespace settings;

const Text odd{u'a', char16_t{0}, char16_t{0xD800}, u'b', char16_t{0xDC00}, u'\x1', u'\x1F'};

TEST(Gates, HaveTheirNamesAndTheirOrder) {
    EXPECT_EQ(gate_names(), (std::vector<TextView>{u"entry mode",
                                                   u"already tagged",
                                                   u"wrapping",
                                                   u"message class",
                                                   u"resend from the Outbox",
                                                   u"resend from Sent Items",
                                                   u"system check switch",
                                                   u"message class again",
                                                   u"quote",
                                                   u"subject",
                                                   u"personal stationery",
                                                   u"reply marker",
                                                   u"internal mail",
                                                   u"answers",
                                                   u"send as is",
                                                   u"mode off",
                                                   u"preview stamp",
                                                   u"preview send stamp",
                                                   u"reply test",
                                                   u"other modes",
                                                   u"default template",
                                                   u"default signature",
                                                   u"auto preview",
                                                   u"composition",
                                                   u"stamping"}));
}

TEST(Gates, TheirTrapsAreCalledAsTheErrorLogIsReadFor) {
    expect_as_written(in_lines(traps()), "connect/traps.txt");
}

TEST(Gates, TheirRecordsAreThoseThatALogIsExplainedBy) {
    std::string lines;
    for (const GateRecords& records : gate_records()) {
        lines += to_utf8(records.gate);
        for (const TextView passed : records.passed) lines += " | " + to_utf8(passed);
        lines += "\n";
    }
    expect_as_written(lines, "connect/records.txt");
}

TEST_F(Sending, WhatThePreviewSendsGoesOutThoughAnotherAddInHeldItBack) {
    Session session(platform_of(stage));
    item().billing_information = host::stamps::preview_send;
    bool cancel = true;
    ol_ItemSend(session, stage.item(0), cancel);
    EXPECT_FALSE(cancel);
}

TEST_F(Sending, AModeThatIsSwitchedOffDuringASendLetsTheItemGoAsItIs) {
    store.change_after(1, user::SettingButtonBar, u"off");
    EXPECT_FALSE(send());
    EXPECT_EQ(item().html_body, u"<p>Hello</p>");
    EXPECT_EQ(item().billing_information, u"");
    EXPECT_EQ(passed.back(), u"send as is");
}

TEST_F(Sending, AModeThatBecomesOnDuringASendLeavesTheItemToTheSendOptionsForm) {
    set(system::SystemCheck, on);
    store.change_after(2, user::SettingButtonBar, u"on");
    EXPECT_FALSE(send());
    EXPECT_EQ(item().html_body, u"<p>Hello</p>");
    EXPECT_EQ(item().billing_information, u"");
    EXPECT_EQ(passed.back(), u"reply test");
    const std::string log = stage.machine.files().read(u"C:\\log.txt");
    EXPECT_NE(log.find("Auto process end check OK, Check 12, Send Event\r\n"), std::string::npos);
    EXPECT_NE(log.find("Ornavel Dialog check OK, Check 13, Send Event\r\n"), std::string::npos);
    EXPECT_NE(log.find("vCard Attach check OK, Check 14, Send Event\r\n"), std::string::npos);
}

TEST_F(Sending, ATemplateThatIsUnsetDuringASendGivesWayToTheFirstOneOfItsFolder) {
    store.change_after(1, user::Template, u"");
    EXPECT_FALSE(send());
    EXPECT_EQ(item().html_body, u"<<p>Hello</p>>\r\n");
}

TEST_F(Sending, HalfPairsAndNulUnitsOfABodyGoOutAsTheyAre) {
    item().html_body = odd;
    EXPECT_FALSE(send());
    EXPECT_EQ(item().html_body, u"<" + odd + u">\r\n");
    EXPECT_EQ(item().billing_information, u"Ornavel from Brevant");
}

TEST_F(Sending, HalfPairsAndNulUnitsOfAPlainTextGoOutAsTheyAre) {
    item().editor_type = 1;
    item().body = odd;
    EXPECT_FALSE(send());
    EXPECT_EQ(item().html_body, u"<span> <font face='Courier new' size=2>" + odd + u"</font></span>");
}

TEST_F(Sending, AReplyIsReadOnceByTheGatesAndOnceByTheComposer) {
    set(system::Office2003SearchString, u"-----Original");
    item().html_body = u"new -----Original old";
    EXPECT_FALSE(send());
    EXPECT_EQ(item().html_body, u"<new >\r\n<p><hr>----Original old");
    EXPECT_EQ(std::ranges::count_if(stage.journal.entries(),
                                    [](const rehearsal::JournalEntry& entry) {
                                        return entry.deed == rehearsal::Deed::get &&
                                               entry.what == u"MailItem.HTMLBody";
                                    }),
              2);
}

TEST_F(Sending, ABodyOfFiftyMegabytesIsDressedWhole) {
    const Text body(std::size_t{25} << 20, u'x');
    item().html_body = body;
    EXPECT_FALSE(send());
    EXPECT_TRUE(item().html_body == u"<" + body + u">\r\n"); // not printed when it differs
}

TEST_F(Sending, SettingsOfAnyTextAndSizeGoIntoTheMessage) {
    Text large;
    while (large.size() < 65536) large += odd + u"'\"<>&|#;";
    set(admin::SigFullname, large);
    EXPECT_FALSE(send());
    EXPECT_EQ(item().html_body, u"<<p>Hello</p>>" + large + u"\r\n");
}

TEST_F(Sending, AnyTextInEverySettingStopsNoSend) {
    Text large;
    while (large.size() < 65536) large += odd;
    for (const TextView text :
         {TextView(odd), TextView(large), TextView(u"-1"), TextView(u"\\\\?\\C:\\..\\")})
        for (const Key& key : catalogue()) {
            item().user_property_nodes.clear();
            item().html_body = u"<p>Hello</p>";
            const auto before = stage.machine.addin_settings().find(key.section, key.name);
            set(key, text);
            const bool needed =
                same_name(key.name, user::Template.name) || same_name(key.name, user::Signature.name);
            EXPECT_EQ(send(), needed) << to_utf8(key.name);
            set(user::SettingButtonBar, u"auto");
            set(key, before ? TextView(*before) : key.default_value);
        }
}

TEST_F(Sending, ADisclaimerOfTenMegabytesGoesUnderAPlainText) {
    std::string disclaimer;
    while (disclaimer.size() < 10'000'000)
        disclaimer += "This message is confidential, and so is its length.\r\n";
    stage.machine.files().write(u"C:\\app\\DisclaimerText.txt", disclaimer);
    item().editor_type = 1;
    EXPECT_FALSE(send());
    const auto lines = disclaimer.size() / 53;
    EXPECT_EQ(item().html_body.size(),
              lines * 55 + Text(u"<span> <font face='Courier new' size=2>Hello</font></span><P>").size());
    EXPECT_TRUE(item().html_body.ends_with(u"and so is its length.<br>"));
    EXPECT_EQ(item().billing_information, u"Ornavel from Brevant");
}

TEST_F(Sending, ABodyTooLargeForItsTextToGrowGoesOutAsItStood) {
    item().html_body = Text(std::size_t{32} << 20, u'x');
    set(admin::SigFullname, Text(std::size_t{1} << 20, u'y'));
    stage.machine.files().write(u"C:\\stationery\\letter.htm", [] {
        std::string fields = "[#Input your message here#]";
        for (int i = 0; i < 40; ++i) fields += "[#SigFullname#]";
        return fields;
    }());
    EXPECT_FALSE(send());
    EXPECT_TRUE(item().html_body.starts_with(u"xxxx"));
    EXPECT_TRUE(item().html_body.ends_with(u"[#SigFullname#]\r\n"));
    EXPECT_NE(stage.machine.files().read(u"C:\\log.txt").find("CreateHTMLBody, CreateHTM_Err, "),
              std::string::npos);
}

} // namespace
} // namespace ornavel::connect
