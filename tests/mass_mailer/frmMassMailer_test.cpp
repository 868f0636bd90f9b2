#include "programs/mass_mailer/frmMassMailer.h"

#include "programs/mass_mailer/mass_mailer.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_launcher.h"
#include "tests/fakes/scripted_windows.h"
#include "tests/forms/drawing.h"
#include "tests/forms/overlap.h"
#include "tests/mass_mailer/fake_mail_client.h"
#include "tests/mass_mailer/fake_waiting.h"

#include <gtest/gtest.h>

#include <new>

namespace ornavel::mass_mailer {
namespace {

using namespace forms;
using Texts = std::vector<Text>;

class NoMachine final : public SystemInformation {
public:
    OperatingSystem operating_system() const override { return {}; }
    int processor_type() const override { return 0; }
    Memory memory() const override { return {}; }
    Text computer_name() const override { return {}; }
    Text user_name() const override { return {}; }
    Text registered_owner() const override { return {}; }
    Text registered_organization() const override { return {}; }
};

class SendToManyWindow : public ::testing::Test {
protected:
    SendToManyWindow() {
        store.save(u"Admin Settings", u"SendToManySubject", u"Hello {{Name}}");
        store.save(u"Admin Settings", u"UseRedemption", u"True");
        store.save(u"Admin Settings", u"BrowserPath", u"C:\\page");
        files.contents[u"C:\\page\\myTestHtmlFile.html"] = "<p>Dear {{Name}}</p>";
        files.contents[Text(list)] = "Name;E-mail\r\nAnn;ann@x\r\nBob;bob@x\r\nNobody;\r\n";
        windows.yes = [](TextView question) { return !contains(question, u"even if they get it twice"); };
    }
    /// Starts the program with a user who acts on its window.
    int show(std::function<void(Form&, FormUser)> script) {
        script_ = std::move(script);
        const programs::Platform platform{.settings = store,
                                          .files = files,
                                          .clock = clock,
                                          .launcher = launcher,
                                          .objects = client,
                                          .windows = windows,
                                          .machine = machine,
                                          .folder = u"C:\\app",
                                          .user_folder = u"C:\\data\\Brevant\\Ornavel",
                                          .scratch_folder = u"C:\\temp",
                                          .waiting = &waiting};
        return programs::run(programs::mass_mailer, platform);
    }
    bool is_told(TextView part) const {
        return std::ranges::any_of(windows.boxes, [&](const Text& box) { return contains(box, part); });
    }
    static constexpr TextView list = u"C:\\lists\\spring.csv";

    settings::MemoryStore store;
    MemoryFiles files;
    FixedClock clock;
    RecordingLauncher launcher;
    FakeWaiting waiting;
    FakeMailClient client;
    ScriptedWindows windows{[this](Form& form, FormUser user) {
        if (script_) script_(form, user);
    }};
    NoMachine machine;

private:
    std::function<void(Form&, FormUser)> script_;
};

TEST_F(SendToManyWindow, LooksAsDrawn) {
    show([](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        expect_drawn(form, "send to many");
    });
}

TEST_F(SendToManyWindow, ShowsTheListAndEachPersonsMessage) {
    show([&](Form& form, FormUser user) {
        EXPECT_EQ(form[u"txtSubject"].text, u"Hello {{Name}}");
        EXPECT_EQ(form[u"txtPace"].text, u"30");
        EXPECT_FALSE(form[u"cmdStart"].enabled);
        EXPECT_EQ(form[u"lblPreview"].caption, u"Preview");
        EXPECT_EQ(form[u"lblPreviewSubject"].caption, u"Subject: Hello {{Name}}");
        user.set_text(u"txtList", list);
        EXPECT_EQ(form[u"cboAddressColumn"].text, u"E-mail");
        EXPECT_EQ(form[u"lstPeople"].items, (Texts{u"ann@x", u"bob@x"}));
        EXPECT_EQ(form[u"lstRejected"].items, Texts{u"Line 4: There is no address"});
        EXPECT_EQ(form[u"lblPeople"].caption, u"P&eople: 2");
        EXPECT_EQ(form[u"lblPreview"].caption, u"ann@x");
        EXPECT_EQ(form[u"lblPreviewSubject"].caption, u"Subject: Hello Ann");
        EXPECT_EQ(form[u"lblPreviewSubject"].tool_tip, u"Subject: Hello Ann");
        EXPECT_EQ(files.contents[form[u"brwPreview"].page], "<p>Dear Ann</p>");
        EXPECT_FALSE(form[u"cmdPrevious"].enabled);
        user.click(u"cmdFollowing");
        EXPECT_EQ(files.contents[form[u"brwPreview"].page], "<p>Dear Bob</p>");
        EXPECT_EQ(form[u"lstPeople"].index, 1);
        EXPECT_FALSE(form[u"cmdFollowing"].enabled);
        user.select(u"lstPeople", 0);
        EXPECT_EQ(form[u"lblPreview"].caption, u"ann@x");
        EXPECT_EQ(form[u"lblPreviewSubject"].caption, u"Subject: Hello Ann");
        EXPECT_EQ(form[u"lblPreviewSubject"].tool_tip, u"Subject: Hello Ann");
    });
    EXPECT_EQ(files.contents.size(), 2u) << "the page of the preview stays nowhere";
    EXPECT_TRUE(client.created.empty());
}

TEST_F(SendToManyWindow, SendsToEachPersonAndNotesItBesideTheList) {
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdStart");
        EXPECT_EQ(form[u"prgSent"].value, 100);
        EXPECT_TRUE(contains(form[u"lblProgress"].caption, u"2 of 2 messages sent"));
        EXPECT_TRUE(form[u"cmdStart"].enabled);
    });
    EXPECT_EQ(client.messages_by_address(), (std::map<Text, int>{{u"ann@x", 1}, {u"bob@x", 1}}));
    EXPECT_TRUE(is_told(u"Send 2 messages?"));
    EXPECT_TRUE(is_told(u"2 messages were sent."));
    EXPECT_TRUE(is_told(u"1 line of the list can't be sent to."));
    EXPECT_TRUE(files.contents[u"C:\\lists\\spring.sent.csv"].starts_with("list "));
}

TEST_F(SendToManyWindow, SendsAtThePaceThatItsUserAskedFor) {
    constexpr int pace = 45, people = 91;
    std::string table = "Name,E-mail\r\n";
    for (int i = 0; i < people; ++i) table += "N,p" + std::to_string(i) + "@x\r\n";
    files.contents[Text(list)] = table;
    std::vector<long long> moments;
    client.at = [&](TextView member) {
        if (member == u"Send") moments.push_back(waiting.now);
    };
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.set_text(u"txtPace", to_text(pace));
        user.click(u"cmdStart");
    });
    ASSERT_EQ(moments.size(), static_cast<std::size_t>(people));
    const double minutes = static_cast<double>(moments.back() - moments.front()) / 60000;
    EXPECT_NEAR((people - 1) / minutes, pace, pace * 0.05);
}

TEST_F(SendToManyWindow, TellsHowFarItIsAndHowLongItStillTakes) {
    Text people = u"Name;Mail\r\n";
    for (int i = 0; i < 130; ++i) people += u"N;p" + to_text(i) + u"@x\r\n";
    Texts told;
    show([&](Form& form, FormUser user) {
        form.shows_changes = [&] {
            const Text words = form[u"lblProgress"].caption;
            if (told.empty() || told.back() != words) told.push_back(words);
        };
        user.set_text(u"txtList", people);
        user.set_text(u"txtPace", u"60");
        user.click(u"cmdStart");
    });
    ASSERT_EQ(told.size(), 132u);
    EXPECT_EQ(told[1], u"1 of 130 messages sent");
    EXPECT_EQ(told[2], u"2 of 130 messages sent, 120 a minute, 1 minute left");
    EXPECT_EQ(told[37], u"37 of 130 messages sent, 62 a minute, 2 minutes left");
    EXPECT_EQ(told[38], u"38 of 130 messages sent, 62 a minute, 1 minute left");
    EXPECT_EQ(told[69], u"69 of 130 messages sent, 61 a minute, 1 minute left");
    EXPECT_EQ(told[70], u"70 of 130 messages sent, 61 a minute, less than a minute left");
    EXPECT_EQ(told.back(), u"130 of 130 messages sent");
}

TEST_F(SendToManyWindow, AnEmptySubjectIsToldBeforeTheStart) {
    for (const TextView subject : {u"Spring", u" "}) {
        client.sent.clear();
        windows.boxes.clear();
        files.contents.erase(u"C:\\lists\\spring.sent.csv");
        show([&](Form&, FormUser user) {
            user.set_text(u"txtSubject", subject);
            user.set_text(u"txtList", list);
            user.click(u"cmdStart");
        });
        EXPECT_EQ(is_told(u"The message has no subject."), subject == u" ");
    }
}

TEST_F(SendToManyWindow, EachPersonsMessageIsReachedInTurnThereAndBack) {
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", u"Mail\r\na@x\r\nb@x\r\nc@x\r\n");
        Texts seen;
        for (const TextView button : {u"cmdFollowing", u"cmdFollowing", u"cmdPrevious", u"cmdPrevious"}) {
            user.click(button);
            seen.push_back(form[u"lblPreview"].caption);
        }
        EXPECT_EQ(seen, (Texts{u"b@x", u"c@x", u"b@x", u"a@x"}));
    });
}

TEST_F(SendToManyWindow, WithoutAYesNothingIsSentOrWritten) {
    windows.yes = {};
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdStart");
    });
    EXPECT_TRUE(client.sent.empty());
    EXPECT_EQ(files.contents.size(), 2u);
}

TEST_F(SendToManyWindow, StartedAgainItGoesOnWhereTheLastRunEnded) {
    int waits = 0;
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        waiting.at_wait = [&, user]() mutable {
            if (++waits == 2) user.click(u"cmdStop");
        };
        user.click(u"cmdStart");
    });
    EXPECT_EQ(client.sent.size(), 1u);
    waiting.at_wait = [] {};
    const auto again = [&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdStart");
    };
    show(again);
    EXPECT_TRUE(is_told(u"1 person has this message already"));
    show(again);
    EXPECT_TRUE(is_told(u"Everybody on this list has this message already."));
    EXPECT_EQ(client.messages_by_address(), (std::map<Text, int>{{u"ann@x", 1}, {u"bob@x", 1}}));
}

TEST_F(SendToManyWindow, APauseIsResumed) {
    int waits = 0;
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        waiting.at_wait = [&, user]() mutable {
            if (++waits == 2) user.click(u"cmdPause");
        };
        user.click(u"cmdStart");
        EXPECT_EQ(client.sent.size(), 1u);
        EXPECT_EQ(form[u"cmdPause"].caption, u"&Resume");
        EXPECT_FALSE(form[u"txtList"].enabled);
        user.click(u"cmdPause");
        EXPECT_EQ(client.sent.size(), 2u);
        EXPECT_FALSE(form[u"cmdPause"].enabled);
    });
}

TEST_F(SendToManyWindow, AStopWhilePausedIsOver) {
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        waiting.at_wait = [user]() mutable { user.click(u"cmdPause"); };
        user.click(u"cmdStart");
        waiting.at_wait = [] {};
        user.click(u"cmdStop");
        EXPECT_TRUE(form[u"cmdStart"].enabled);
    });
    EXPECT_TRUE(client.sent.empty());
}

TEST_F(SendToManyWindow, ClosedWhileItSendsItStops) {
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        waiting.at_wait = [&, user]() mutable {
            if (client.sent.size() == 1) user.close(), waiting.at_wait = [] {};
        };
        user.click(u"cmdStart");
    });
    EXPECT_EQ(client.sent.size(), 1u);
}

TEST_F(SendToManyWindow, OfManyUnknownPeopleTheFirstTenAreToldByName) {
    Text people = u"Name;Mail\r\n", first_ten;
    for (int i = 10; i < 21; ++i) people += u"N;p" + to_text(i) + u"@x\r\n";
    for (int i = 10; i < 20; ++i) first_ten += u"\r\np" + to_text(i) + u"@x";
    const auto start = [&](Form&, FormUser user) {
        user.set_text(u"txtList", people);
        user.click(u"cmdStart");
    };
    show(start);
    ASSERT_EQ(client.sent.size(), 11u);
    std::string& journal = files.contents.at(u"C:\\data\\Brevant\\Ornavel\\pasted.sent.csv");
    for (auto at = journal.find("sent p"); at != std::string::npos; at = journal.find("sent p"))
        journal.erase(at, journal.find('\n', at) + 1 - at);
    show(start);
    EXPECT_TRUE(
        is_told(u"Nobody knows whether 11 people have the message:" + first_ten + u"\r\n…\r\n\r\nSend it"));
}

TEST_F(SendToManyWindow, UnknownPeopleAreShownAndSentToOnlyWhenTheUserSaysSo) {
    const auto start = [&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdStart");
        EXPECT_EQ(form[u"lstPeople"].items[0], u"ann@x (nobody knows whether it was sent)");
    };
    client.at = [&](TextView member) {
        constexpr auto call_failed = static_cast<std::int32_t>(0x800706BE);
        if (member == u"Send") throw host::Error(u"gone", {}, call_failed);
    };
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        int waits = 0;
        waiting.at_wait = [&, user]() mutable {
            if (++waits == 2) user.click(u"cmdStop");
        };
        user.click(u"cmdStart");
        EXPECT_EQ(form[u"lstRejected"].items[0], u"ann@x: gone (nobody knows whether it was sent)");
    });
    waiting.at_wait = [] {};
    client.at = [](TextView) {};
    show(start);
    EXPECT_EQ(client.messages_by_address(), (std::map<Text, int>{{u"bob@x", 1}}));
    EXPECT_TRUE(is_told(u"Nobody knows whether 1 person has the message:\r\nann@x"));
    windows.yes = [](TextView) { return true; };
    show(start);
    EXPECT_EQ(client.messages_by_address(), (std::map<Text, int>{{u"ann@x", 1}, {u"bob@x", 1}}));
}

TEST_F(SendToManyWindow, AListThatChangedHasAnotherJournalAndSaysSo) {
    const auto start = [&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdStart");
    };
    show(start);
    files.contents[Text(list)] += "Carol;carol@x\r\n";
    show(start);
    EXPECT_TRUE(is_told(u"The list or the message is another one than in C:\\lists\\spring.sent.csv"));
    EXPECT_TRUE(is_told(u"2 people of this list have a message."));
    EXPECT_TRUE(files.file_exists(u"C:\\lists\\spring.sent.2.csv"));
}

TEST_F(SendToManyWindow, AFieldThatNoColumnFillsStopsBeforeTheStart) {
    store.save(u"Admin Settings", u"SendToManySubject", u"Hello {{Nme}}");
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdStart");
        user.click(u"cmdTest");
    });
    EXPECT_EQ(windows.boxes, Texts(2, u"Ornavel Send to Many: The list has no column \"Nme\"."));
    EXPECT_TRUE(client.sent.empty());
}

TEST_F(SendToManyWindow, APaceThatIsNoNumberStopsBeforeTheStart) {
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        for (const TextView pace : {u"", u"fast", u"-3", u"1.5"}) {
            user.set_text(u"txtPace", pace);
            user.click(u"cmdStart");
        }
    });
    EXPECT_EQ(windows.boxes,
              Texts(4, u"Ornavel Send to Many: How many messages a minute? 0 is without pause."));
}

TEST_F(SendToManyWindow, ATestGoesToOneselfWithThePersonsValues) {
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdFollowing");
        user.click(u"cmdTest");
        EXPECT_TRUE(is_told(u"A test message was sent to jo@example.com."));
        user.click(u"cmdStart");
        EXPECT_FALSE(is_told(u"No test message was sent yet."));
    });
    ASSERT_EQ(client.sent.size(), 3u);
    EXPECT_EQ(client.sent[0][u"To"], u"jo@example.com");
    EXPECT_EQ(client.sent[0][u"Subject"], u"Hello Bob");
}

TEST_F(SendToManyWindow, ATestCountsForTheListThatItWasMadeWith) {
    windows.yes = {};
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdTest");
        user.click(u"cmdStart");
        EXPECT_FALSE(is_told(u"No test message was sent yet."));
        user.set_text(u"txtList", u"Name;Mail\r\nCy;cy@x\r\n");
        user.click(u"cmdStart");
        EXPECT_TRUE(is_told(u"No test message was sent yet."));
    });
}

TEST_F(SendToManyWindow, AnotherSubjectIsPreviewedAtOnce) {
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        user.set_text(u"txtSubject", u"Good bye {{Name}}");
        EXPECT_EQ(form[u"lblPreviewSubject"].caption, u"Subject: Good bye Ann");
    });
}

TEST_F(SendToManyWindow, ATestThatFailsSaysWhy) {
    client.at = [](TextView) { throw host::Error(u"ActiveX component can't create object"); };
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdTest");
    });
    EXPECT_TRUE(is_told(u"The test message was not sent: ActiveX component can't create object"));
}

TEST_F(SendToManyWindow, APastedListIsNotedAmongTheUsersData) {
    store.save(u"Admin Settings", u"SendToManySubject", u"Hello");
    files.contents[u"C:\\page\\myTestHtmlFile.html"] = "<p>Dear all</p>";
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", u"ann@x; bob@x\r\ncarol@x");
        user.click(u"cmdStart");
    });
    EXPECT_EQ(client.sent.size(), 3u);
    EXPECT_TRUE(files.file_exists(u"C:\\data\\Brevant\\Ornavel\\pasted.sent.csv"));
}

TEST_F(SendToManyWindow, AListIsChosenInADialog) {
    show([&](Form& form, FormUser user) {
        user.click(u"cmdOpenList");
        EXPECT_EQ(form[u"txtList"].text, u"");
        windows.path = list;
        user.click(u"cmdOpenList");
        EXPECT_EQ(form[u"txtList"].text, list);
        EXPECT_EQ(form[u"lstPeople"].items.size(), 2u);
    });
}

TEST_F(SendToManyWindow, AListForWhichThereIsNoMemoryReachesNobodyOfTheOneBefore) {
    store.save(u"Admin Settings", u"SendToManySubject", u"Hello {{E-mail}}");
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdFollowing");
        files.at_look = [](TextView path) {
            if (path == u"C:\\lists\\huge.csv") throw std::bad_alloc();
        };
        EXPECT_FALSE(attempt([&] { user.set_text(u"txtList", u"C:\\lists\\huge.csv"); }));
        user.click(u"cmdStart");
        user.click(u"cmdTest");
    });
    EXPECT_EQ(windows.boxes, Texts(2, u"Ornavel Send to Many: There is nobody to send to."));
    EXPECT_TRUE(client.sent.empty());
}

TEST_F(SendToManyWindow, AListThatCantBeUnderstoodSaysWhereAndSendsNothing) {
    files.contents[Text(list)] = "Name;E-mail\r\nAnn;\"ann@x\r\n";
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        EXPECT_EQ(form[u"lstRejected"].items, Texts{u"Line 2: This quoted cell never ends"});
        EXPECT_FALSE(form[u"cmdStart"].enabled);
    });
}

TEST_F(SendToManyWindow, WhatCantBeNotedIsNotSentAndMayBeResumed) {
    show([&](Form& form, FormUser user) {
        user.set_text(u"txtList", list);
        client.after_send = [&] { files.refused = {u"C:\\lists\\spring.sent.csv"}; };
        user.click(u"cmdStart");
        EXPECT_TRUE(is_told(u"What was sent can't be noted, so nothing more is sent:"));
        EXPECT_EQ(client.sent.size(), 1u);
        EXPECT_TRUE(form[u"cmdPause"].enabled);
        files.refused.clear();
        client.after_send = [] {};
        user.click(u"cmdPause");
    });
    EXPECT_EQ(client.sent.size(), 2u);
}

TEST_F(SendToManyWindow, TheUsageLogHasARowForEachMessage) {
    store.save(u"Admin Settings", u"Marketing", u"S|ON#C|DSN=log#T|rows#R|x");
    show([&](Form&, FormUser user) {
        user.set_text(u"txtList", list);
        user.click(u"cmdStart");
    });
    EXPECT_EQ(client.statements.size(), 2u);
}

TEST_F(SendToManyWindow, WithoutAMessageThereIsNoWindow) {
    files.contents.erase(u"C:\\page\\myTestHtmlFile.html");
    EXPECT_EQ(show({}), programs::gave_up);
    EXPECT_TRUE(is_told(u"There is no message to send."));
}

TEST_F(SendToManyWindow, NothingOverlapsInTheSmallestWindowAndAccessKeysAreUnique) {
    show([](Form& form, FormUser user) {
        user.resize(0, 0);
        expect_apart(form);
        for (const Control& one : form.controls()) EXPECT_GE(one.place.height, 195) << to_utf8(one.name);
        EXPECT_EQ(unique_access_keys(form).size(), 13u);
    });
}

} // namespace
} // namespace ornavel::mass_mailer
