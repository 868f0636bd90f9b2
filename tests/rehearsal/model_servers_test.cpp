#include "rehearsal/model/calendar.h"
#include "tests/rehearsal/stage.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

using host::as_object;
using host::as_text;

constexpr auto current_user = static_cast<std::int32_t>(0x80000001U);
const char16_t* const provider =
    u"winmgmts:{impersonationLevel=impersonate}!\\\\DESK-7\\root\\default:StdRegProv";

TEST(RegistryProvider, ReadsWritesAndDeletesThroughResults) {
    Stage stage(R"({"do": [], "registry": {"HKEY_CURRENT_USER\\Software\\A": {"Name": "x", "Number": 7}}})");
    const auto registry = stage.client.get(provider);
    host::Result result;
    const auto read = [&](host::Member member, TextView name) {
        return host::as_number(
            registry->call(member, {current_user, Text(u"software\\a"), Text(name), &result}));
    };
    EXPECT_EQ(read({u"GetStringValue"}, u"name"), 0);
    EXPECT_EQ(as_text(result.value), u"x");
    EXPECT_EQ(read({u"GetDWORDValue"}, u"Number"), 0);
    EXPECT_EQ(host::as_number(result.value), 7);
    EXPECT_NE(read({u"GetStringValue"}, u"Number"), 0);
    EXPECT_EQ(as_text(result.value), u"");
    EXPECT_NE(read({u"GetStringValue"}, u"Absent"), 0);
    registry->call({u"SetDWORDValue"}, {current_user, Text(u"New"), Text(u"Check"), 1});
    EXPECT_EQ(stage.machine.snapshot().registry[u"HKEY_CURRENT_USER\\New"][u"Check"], RegistryValue(1u));
    registry->call({u"DeleteKey"}, {current_user, Text(u"Software\\A")});
    EXPECT_FALSE(stage.machine.snapshot().registry.contains(u"HKEY_CURRENT_USER\\Software\\A"));
}

TEST(RegistryProvider, IsNotThereWhenTheScenarioSaysSo) {
    Stage stage(R"({"do": [], "host": {"objects": {"winmgmts": false}}})");
    EXPECT_NE(description_of([&] { stage.client.get(provider); }), u"nothing failed");
}

TEST(Word, SavesWhatTheScenarioGivesIt) {
    Stage stage(R"({"do": [], "folders": ["C:\\app"], "items": [{}, {"IsWordMail": true,
        "Word": {"Version": "10.0", "html": "<html>é</html>"}}]})");
    const auto editor = [&](std::size_t index) {
        return stage.item(index).inspector().object()->get({u"WordEditor"});
    };
    EXPECT_EQ(host::as_object_or_nothing(editor(0)), nullptr);
    const auto document = as_object(editor(1));
    EXPECT_EQ(as_text(as_object(document->get({u"Application"}))->get({u"Version"})), u"10.0");
    as_object(document->get({u"Content"}))->call({u"Copy"});
    document->call({u"SaveAs"}, {Text(u"C:\\app\\GetMyHtml.htm"), 10});
    EXPECT_EQ(stage.machine.files().read(u"C:\\app\\GetMyHtml.htm"), "<html>é</html>");
}

TEST(CalendarModel, WalksTheRestrictedAppointmentsInOrder) {
    Stage stage(R"({"do": [], "host": {"calendar": [{"subject": "Late", "start": "2003-11-20T16:00:00"},
        {"subject": "Early", "start": "2003-11-20T09:30:00"}, {"subject": "Tomorrow", "start": "2003-11-21T00:00:00"}]}})");
    const auto space = as_object(stage.application().object()->call({u"GetNamespace"}, {Text(u"MAPI")}));
    const auto folder = as_object(space->call({u"GetDefaultFolder"}, {9}));
    const auto items = as_object(folder->get({u"Items"}));
    items->call({u"Sort"}, {Text(u"[Start]")});
    items->put({u"IncludeRecurrences"}, true);
    const auto today = as_object(items->call(
        {u"Restrict"}, {Text(u"[Start] >= 'November-20-2003' and [Start] < 'November-20-2003 11:59 pm'")}));
    const auto first = as_object(today->call({u"GetFirst"}));
    EXPECT_EQ(as_text(first->get({u"Subject"})), u"Early");
    EXPECT_NEAR(std::get<host::Date>(first->get({u"Start"})).days, 37945.395833, 1e-5);
    EXPECT_EQ(as_text(as_object(today->call({u"GetNext"}))->get({u"Subject"})), u"Late");
    EXPECT_EQ(host::as_object_or_nothing(today->call({u"GetNext"})), nullptr);
}

TEST(CalendarModel, RefusesAFilterThatItDoesNotUnderstand) {
    for (const char16_t* filter :
         {u"", u"[End] > '1/1/2003'", u"[Start] > 'Nonvember-20-2003'",
          u"[Start] > '11/20/2003' or [Start] < '1/1/2004'", u"[Start] > '11/20/2003' and"})
        EXPECT_EQ(description_of([&] { restricted({}, filter); }), u"The condition is not valid.");
    EXPECT_EQ(restricted({{u"Noon", {2003, 11, 20, 12, 0, 0}}}, u"[Start] = '11/20/2003 12:00 PM'").size(),
              1u);
}

TEST(Browser, EachUseIsWrittenDown) {
    Stage stage(R"({"do": []})");
    const auto browser = stage.client.create(u"InternetExplorer.Application");
    browser->call({u"Navigate"}, {Text(u"C:\\a.html")});
    browser->put({u"AddressBar"}, false);
    browser->put({u"Visible"}, true);
    browser->call({u"Quit"});
    EXPECT_EQ(stage.client.browser,
              parse_json(
                  R"([{"Navigate": "C:\\a.html"}, {"AddressBar": false}, {"Visible": true}, {"Quit": null}])",
                  "expected"));
    EXPECT_NE(description_of([&] { browser->call({u"Quit"}); }), u"nothing failed");
}

TEST(FileSystem, CopiesAndDeletesAsTheScriptingHostDoes) {
    Stage stage(R"({"do": [], "files": {"C:\\p\\NewUser.reg": "REGEDIT4"}})");
    const auto files = stage.client.create(u"Scripting.FileSystemObject");
    EXPECT_TRUE(host::as_flag(files->call({u"FileExists"}, {Text(u"c:\\P\\newuser.reg")})));
    files->call({u"CreateFolder"}, {Text(u"C:\\t")});
    EXPECT_EQ(description_of([&] { files->call({u"CreateFolder"}, {Text(u"C:\\t")}); }),
              u"File already exists");
    as_object(files->call({u"GetFile"}, {Text(u"C:\\p\\NewUser.reg")}))->call({u"Copy"}, {Text(u"C:\\t\\")});
    EXPECT_TRUE(stage.machine.files().file_exists(u"C:\\t\\NewUser.reg"));
    files->call({u"DeleteFile"}, {Text(u"C:\\t\\*.*")});
    EXPECT_FALSE(stage.machine.files().file_exists(u"C:\\t\\NewUser.reg"));
    EXPECT_EQ(description_of([&] { files->call({u"DeleteFile"}, {Text(u"C:\\t\\*.*")}); }),
              u"File not found");
    files->call({u"DeleteFolder"}, {Text(u"C:\\t")});
    EXPECT_FALSE(stage.machine.files().folder_exists(u"C:\\t"));
    EXPECT_EQ(description_of([&] { files->call({u"DeleteFolder"}, {Text(u"C:\\t")}); }), u"Path not found");
}

TEST(Links, LeadToTheContact) {
    Stage stage(R"({"do": [], "items": [{"Links": [{"FullName": "Ann Lee", "EntryID": "E1",
        "Folder": {"Name": "Contacts", "EntryID": "F1"}, "Body": "old"}]}]})");
    const auto links = as_object(stage.item(0).object()->get({u"Links"}));
    const auto contact = as_object(as_object(links->call({u"Item"}, {1}))->get({u"Item"}));
    EXPECT_EQ(as_text(contact->get({u"FullName"})), u"Ann Lee");
    EXPECT_EQ(as_text(as_object(contact->get({u"Parent"}))->get({u"EntryID"})), u"F1");
    contact->put({u"Body"}, Text(u"new old"));
    contact->call({u"Close"}, {0});
    EXPECT_EQ(stage.client.items[0]->contacts[0]->body, u"new old");
    EXPECT_EQ(stage.client.items[0]->contacts[0]->closed_with, 0);
}

TEST(MemoryDisk, ReadsAPathAsTheSystemDoes) {
    MemoryDisk disk;
    disk.create_folder(u"C:\\htm\\");
    disk.write(u"C:\\htm/a.htm", "a");
    EXPECT_EQ(disk.read(u"c:\\HTM\\\\A.htm"), "a");
    EXPECT_EQ(disk.list(u"C:\\htm\\"), std::vector<Text>{u"a.htm"});
    EXPECT_EQ(disk.files().begin()->first, u"C:\\htm\\a.htm");
    EXPECT_THROW(disk.write(u"C:\\none\\a", ""), Failure);
    EXPECT_THROW(disk.write(u"C:\\htm", ""), Failure);
}

} // namespace
} // namespace ornavel::rehearsal
