#include "tests/rehearsal/stage.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

const char* const one_item = R"({"do": [], "items": [{"Subject": "Hello", "Recipients": ["ann@example.com"],
    "UserProperties": {"Colour": "blue"}, "EditorType": 3}], "files": {"C:\\a.txt": "x"}})";

TEST(ObjectModel, AnItemIsReadAndWrittenThroughItsViews) {
    Stage stage(one_item);
    const auto item = stage.item(0);
    EXPECT_EQ(item.subject(), u"Hello");
    EXPECT_EQ(item.parent().name(), u"Drafts");
    EXPECT_EQ(item.inspector().editor_type(), 3);
    EXPECT_EQ(item.recipients().item(1).address(), u"ann@example.com");
    item.set_html_body(u"<p>");
    item.user_properties().add(u"BrevantOrnavel").set_value(u"Version 3.9.9");
    item.attachments().add(u"c:\\A.TXT");
    item.save();
    const auto& node = *stage.client.items[0];
    EXPECT_EQ(node.html_body, u"<p>");
    EXPECT_EQ(node.user_property_nodes.at(1)->value, u"Version 3.9.9");
    EXPECT_EQ(node.attachment_nodes.size(), 1u);
    EXPECT_EQ(node.saves, 1);
    EXPECT_EQ(node.body, u"");
}

TEST(ObjectModel, StrictAboutMembersArgumentsAndTypes) {
    Stage stage(one_item);
    const auto item = stage.item(0).object();
    const auto unsupported = u"Object doesn't support this property or method";
    EXPECT_EQ(description_of([&] { item->get({u"Sbuject"}); }), unsupported);
    EXPECT_EQ(description_of([&] { item->put({u"Parent"}, Text(u"Inbox")); }), unsupported);
    EXPECT_EQ(description_of([&] { item->put({u"Save"}, true); }), unsupported);
    EXPECT_EQ(description_of([&] { item->call({u"Save"}, {Text(u"now")}); }),
              u"Wrong number of arguments or invalid property assignment");
    EXPECT_EQ(description_of([&] { item->put({u"Subject"}, item); }), u"Type mismatch");
    EXPECT_EQ(description_of([&] { item->put({u"Importance"}, Text(u"high")); }), u"Type mismatch");
    EXPECT_EQ(description_of([&] { stage.item(0).recipients().item(2); }), u"Array index out of bounds.");
    EXPECT_EQ(description_of([&] { stage.item(0).attachments().add(u"C:\\b.txt"); }),
              u"Cannot find this file. Verify the path and file name are correct.");
    EXPECT_EQ(host::as_text(item->get({u"SUBJECT"})), u"Hello");
}

TEST(ObjectModel, CountsWhatTheAddInHolds) {
    Stage stage(one_item);
    EXPECT_EQ(stage.held(), 0u);
    {
        const auto application = stage.application();
        const auto item = stage.item(0);
        const auto copy = item;
        EXPECT_EQ(stage.held(), 2u);
        const auto events = application.on_events({});
        EXPECT_EQ(stage.client.references()->names(),
                  (std::vector<Text>{u"Application", u"MailItem", u"Application events"}));
        item.recipients().item(1);
        EXPECT_EQ(stage.held(), 3u);
    }
    EXPECT_EQ(stage.held(), 0u);
}

TEST(ObjectModel, ItemSendCarriesTheItemAndComesBackWithCancel) {
    Stage stage(one_item);
    Text seen;
    const auto application = stage.application();
    auto events = application.on_events({[&](host::MailItem item, bool& cancel) {
                                             seen = item.subject();
                                             cancel = true;
                                         },
                                         {}});
    EXPECT_TRUE(stage.client.send(*stage.client.items[0]));
    EXPECT_EQ(seen, u"Hello");
    EXPECT_TRUE(stage.client.items[0]->cancelled);
    EXPECT_FALSE(stage.client.items[0]->sent);
    events.reset();
    EXPECT_FALSE(stage.client.send(*stage.client.items[0]));
    EXPECT_TRUE(stage.client.items[0]->sent);
}

TEST(ObjectModel, FailsTheUseThatTheScenarioNames) {
    Stage stage(R"({"do": [], "items": [{}], "fail": [{"member": "mailitem.save", "use": 2, "says": "full"},
                    {"member": "Application.Version"}]})");
    const auto item = stage.item(0);
    item.save();
    EXPECT_EQ(description_of([&] { item.save(); }), u"full");
    item.save();
    EXPECT_EQ(stage.client.items[0]->saves, 2);
    EXPECT_EQ(description_of([&] { stage.application().version(); }), u"rehearsed failure");
}

TEST(ObjectModel, TheWrapperUsesTheItem) {
    Stage stage(R"({"do": [], "items": [{"Subject": "Hello"}],
                    "fail": [{"member": "MailItem.Save", "use": 2}, {"member": "SafeMailItem.Subject", "use": 2}]})");
    const auto item = stage.item(0);
    const auto safe = host::SafeMailItem::around(stage.client, item);
    EXPECT_EQ(safe.subject(), u"Hello");
    EXPECT_EQ(description_of([&] { safe.subject(); }), u"rehearsed failure");
    safe.save();
    EXPECT_EQ(description_of([&] { safe.save(); }), u"rehearsed failure");
    EXPECT_EQ(stage.client.items[0]->saves, 1);
    EXPECT_EQ(description_of([&] { safe.object()->get({u"Nonsense"}); }),
              u"Object doesn't support this property or method");
}

TEST(ObjectModel, AMailThatTheAddInSendsIsRecorded) {
    Stage stage(R"({"do": [], "files": {"C:\\log.txt": ""}})");
    const auto mail = stage.application().create_mail();
    const auto safe = host::SafeMailItem::around(stage.client, mail);
    safe.set_subject(u"Ornavel Error");
    safe.recipients().add(u"help@example.com");
    safe.attachments().add(u"C:\\log.txt");
    safe.send();
    ASSERT_EQ(stage.client.sent_mails.size(), 1u);
    EXPECT_EQ(stage.client.sent_mails[0]->subject, u"Ornavel Error");
    EXPECT_EQ(stage.client.sent_mails[0]->through, u"SafeMailItem");
    EXPECT_TRUE(stage.client.sent_mails[0]->sent);
}

TEST(ObjectModel, OwnMailsRaiseItemSendWhereTheScenarioSaysSo) {
    for (const bool raises : {false, true}) {
        Stage stage(raises ? R"({"do": [], "host": {"own mails raise ItemSend": true}})" : R"({"do": []})");
        int raised = 0;
        const auto application = stage.application();
        const auto events = application.on_events({[&](host::MailItem, bool&) { ++raised; }, {}});
        application.create_mail().send();
        EXPECT_EQ(raised, raises ? 1 : 0);
        EXPECT_EQ(stage.client.sent_mails.size(), 1u);
    }
}

TEST(ObjectModel, WhatIsNotInstalledCannotBeCreated) {
    Stage stage(R"({"do": [], "host": {"objects": {"redemption.safemailitem": false}}})");
    const auto refused = u"ActiveX component can't create object";
    EXPECT_EQ(description_of([&] { stage.client.create(u"Redemption.SafeMailItem"); }), refused);
    EXPECT_EQ(description_of([&] { stage.client.create(u"No.Such"); }), refused);
    EXPECT_NE(stage.client.create(u"BrevantPage.PropPage"), nullptr);
}

TEST(ObjectModel, ButtonsAreFoundByTagClickedAndDeleted) {
    Stage stage(R"({"do": []})");
    const auto bar = stage.application().active_explorer().command_bars().item(u"Standard");
    const auto button = bar.add_temporary_button();
    button.set_tag(u"EmailMonitor");
    int clicks = 0;
    const auto subscription = button.on_click([&] { ++clicks; });
    stage.client.click(*stage.client.standard_bar->find(u"EmailMonitor"));
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(bar.find_button(u"EmailMonitor"));
    EXPECT_FALSE(bar.find_button(u"ButtonWiz"));
    button.remove();
    EXPECT_FALSE(bar.find_button(u"EmailMonitor"));
    EXPECT_NE(description_of([&] { button.set_caption(u"x"); }), u"nothing failed");
}

TEST(ObjectModel, AClosingExplorerStillCountsAndIsTheActiveOneWhileItSaysSo) {
    Stage stage(R"({"do": [], "host": {"explorers": 2}})");
    const auto application = stage.application();
    int count = 0;
    bool is_active = false;
    const auto explorer = application.active_explorer();
    const auto events = explorer.on_close([&] {
        count = application.explorers().count();
        is_active = application.active_explorer().is_same(explorer);
    });
    stage.client.close_explorer(0);
    EXPECT_EQ(count, 2);
    EXPECT_TRUE(is_active);
    EXPECT_EQ(application.explorers().count(), 1);
    EXPECT_TRUE(application.active_explorer().is_same(application.explorers().item(1)));
    stage.client.close_explorer(1);
    EXPECT_FALSE(application.active_explorer());
}

TEST(ObjectModel, ANewExplorerIsToldOfAndChangesTheActiveOneOnlyWhereThereWasNone) {
    Stage stage(R"({"do": [], "host": {"explorers": 0}})");
    const auto application = stage.application();
    std::vector<host::Explorer> opened;
    const auto events =
        application.explorers().on_new([&](const host::Explorer& explorer) { opened.push_back(explorer); });
    stage.client.add_explorers(2);
    ASSERT_EQ(opened.size(), 2u);
    EXPECT_TRUE(application.active_explorer().is_same(opened[0]));
    EXPECT_FALSE(opened[0].is_same(opened[1]));
}

TEST(ObjectModel, PagesCollectTheirTitles) {
    Stage stage(R"({"do": []})");
    const auto application = stage.application();
    const auto events =
        application.on_events({{}, [&](host::PropertyPages pages) {
                                   pages.add(stage.client.create(u"BrevantPage.PropPage"), u"Ornavel");
                               }});
    stage.client.ask_for_pages();
    EXPECT_EQ(stage.client.pages, std::vector<Text>{u"Ornavel"});
}

TEST(ObjectModel, AConnectionKeepsItsStatements) {
    Stage stage(R"({"do": []})");
    const auto connection = stage.client.create(u"ADODB.Connection");
    EXPECT_NE(description_of([&] { connection->call({u"Execute"}, {Text(u"insert")}); }), u"nothing failed");
    connection->call({u"Open"}, {Text(u"dsn")});
    connection->call({u"Execute"}, {Text(u"insert")});
    connection->call({u"Close"});
    EXPECT_EQ(stage.client.statements, std::vector<Text>{u"insert"});
    EXPECT_EQ(stage.client.connections.size(), 1u);
}

TEST(ObjectModel, TheJournalTellsEachUseInOrder) {
    Stage stage(one_item);
    stage.journal.begin_act(3);
    const auto item = stage.item(0);
    item.set_subject(item.subject() + u"!");
    item.save();
    EXPECT_EQ(stage.journal.host_uses(3), 3u);
    EXPECT_EQ(stage.journal.host_uses(0), 0u);
    EXPECT_EQ(stage.journal.entries()[1].what, u"MailItem.Subject");
    EXPECT_EQ(stage.journal.entries()[1].value, u"Hello!");
}

/// One item in front of a mail client of this version.
std::string in_version(const std::string& version, const std::string& item) {
    return R"({"do": [], "host": {"version": ")" + version + R"("}, "items": [{)" + item + "}]}";
}

TEST(ObjectModel, From2007OnTheEditorIsWordAndTheBodyTellsTheKind) {
    for (const char* version : {"12.0", "14.0", "15.0", "16.0"}) {
        struct Case {
            const char* item;
            int format;
        };
        constexpr Case cases[] = {{"", 2},
                                  {R"("EditorType": 1)", 1},
                                  {R"("EditorType": 3)", 3},
                                  {R"("EditorType": 4)", 2},
                                  {R"("EditorType": 1, "BodyFormat": 3)", 3}};
        for (const auto& [item, format] : cases) {
            Stage stage(in_version(version, item));
            EXPECT_EQ(stage.item(0).inspector().editor_type(), 4) << item;
            EXPECT_EQ(stage.item(0).body_format(), format) << item;
        }
    }
}

TEST(ObjectModel, UpTo2003ThereIsNoBodyFormat) {
    for (const char* version : {"9.0", "10.0", "11.0", ""}) {
        Stage stage(in_version(version, R"("EditorType": 3, "BodyFormat": 1)"));
        EXPECT_EQ(stage.item(0).inspector().editor_type(), 3);
        EXPECT_EQ(description_of([&] { stage.item(0).body_format(); }),
                  u"Object doesn't support this property or method");
    }
}

TEST(ObjectModel, AWindowWithTheRibbonHasNoStandardBar) {
    struct Case {
        const char* version;
        bool explorer, message;
    };
    constexpr Case cases[] = {
        {"11.0", true, true}, {"12.0", true, false}, {"14.0", false, false}, {"16.0", false, false}};
    const auto has_bar = [](const host::CommandBars& bars) {
        return description_of([&] { bars.item(u"Standard"); }) == u"nothing failed";
    };
    for (const auto& [version, explorer, message] : cases) {
        Stage stage(in_version(version, ""));
        stage.client.open_window(stage.client.items[0]);
        EXPECT_EQ(has_bar(stage.application().active_explorer().command_bars()), explorer) << version;
        EXPECT_EQ(has_bar(stage.application().message_windows().item(1).command_bars()), message) << version;
    }
}

} // namespace
} // namespace ornavel::rehearsal
