#include "programs/mass_mailer/mailing.h"

#include "programs/mass_mailer/usage.h"
#include "programs/mass_mailer/warnings.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_reports.h"
#include "tests/mass_mailer/fake_mail_client.h"
#include "tests/mass_mailer/fake_waiting.h"

#include <gtest/gtest.h>

namespace ornavel::mass_mailer {
namespace {

using Texts = std::vector<Text>;

/// A list of people p0@x, p1@x and so on, and everything that a run over it needs.
class SendingToMany : public ::testing::Test {
protected:
    void take_list(int size) {
        Text list = u"Mail,Name\r\n";
        for (int i = 0; i < size; ++i) list += u"p" + to_text(i) + u"@x,N" + to_text(i) + u"\r\n";
        table = read_table(to_utf8(list), windows_1252());
        people = people_of(table, 0);
        subject.emplace(u"Hello {{Name}}", Draft::Kind::line, table.columns);
        page.emplace(u"<p>{{Name}}</p>", Draft::Kind::html, table.columns);
    }
    Mailing mailing(int pace = 0, bool with_unknown = false) {
        return {{table, people, *subject, *page, *journal, mail_client, clock, waiting}, pace, with_unknown};
    }
    std::string noted() { return files.contents[u"C:\\l.sent.csv"]; }

    Table table;
    People people;
    std::optional<Draft> subject, page;
    MemoryFiles files;
    std::optional<Journal> journal{std::in_place, files, JournalStems{u"C:\\l.sent"}, u"0123456789ABCDEF"};
    FakeMailClient outbox;
    MailClient mail_client{outbox, false};
    FixedClock clock;
    FakeWaiting waiting;
};

TEST_F(SendingToMany, EachPersonGetsOneMessageOfTheirOwn) {
    take_list(3);
    Mailing one = mailing();
    EXPECT_EQ(one.go_on(), Rest::done);
    ASSERT_EQ(outbox.sent.size(), 3u);
    FakeMailClient::Message second = outbox.sent[1];
    EXPECT_EQ(second[u"To"], u"p1@x");
    EXPECT_EQ(second[u"Subject"], u"Hello N1");
    EXPECT_EQ(second[u"HTMLBody"], u"<p>N1</p>");
    EXPECT_EQ(second[u"BillingInformation"], u"Preview Send");
    EXPECT_EQ(one.sent(), 3u);
    EXPECT_EQ(outbox.created, Texts{u"Outlook.Application"});
}

TEST_F(SendingToMany, GoesThroughTheWrapperWhereThatIsWanted) {
    take_list(1);
    MailClient safe(outbox, true);
    Mailing one({table, people, *subject, *page, *journal, safe, clock, waiting}, 0, false);
    one.go_on();
    ASSERT_EQ(outbox.sent.size(), 1u);
    EXPECT_EQ(outbox.sent[0][u"through"], u"Redemption.SafeMailItem");
    EXPECT_EQ(outbox.sent[0][u"To"], u"p0@x");
}

TEST_F(SendingToMany, WhoGotAMessageInAnEarlierRunGetsNoOther) {
    take_list(3);
    journal->begin();
    journal->note_sending(u"p0@x");
    journal->note_sent(u"p0@x", clock.now());
    journal->note_sending(u"p1@x");
    journal.emplace(files, JournalStems{u"C:\\l.sent"}, u"0123456789ABCDEF");
    Mailing without = mailing();
    EXPECT_EQ(without.size(), 1u);
    Mailing with = mailing(0, true);
    EXPECT_EQ(with.size(), 2u);
    without.go_on();
    EXPECT_EQ(outbox.messages_by_address(), (std::map<Text, int>{{u"p2@x", 1}}));
}

TEST_F(SendingToMany, KeepsItsPaceWithinFiveInAHundred) {
    waiting.late = 15; // as where a clock ticks 64 times a second
    for (const int pace : {1, 7, 30, 600, 1500}) {
        take_list(61);
        outbox.sent.clear();
        files.contents.clear();
        journal.emplace(files, JournalStems{u"C:\\l.sent"}, u"0123456789ABCDEF");
        const long long began = waiting.now;
        outbox.at = [&](TextView member) { waiting.now += member == u"Send" ? 3 : 0; };
        EXPECT_EQ(mailing(pace).go_on(), Rest::done);
        const double minutes = static_cast<double>(waiting.now - began) / 60000;
        EXPECT_NEAR(60 / minutes, pace, pace * 0.05) << pace;
    }
}

TEST_F(SendingToMany, SendsEachMessageOfAUsualPaceWithinFiveInAHundredOfItsTurn) {
    waiting.late = 15;
    for (const int pace : {1, 12, 30, 60, 120}) {
        take_list(130);
        files.contents.clear();
        journal.emplace(files, JournalStems{u"C:\\l.sent"}, u"0123456789ABCDEF");
        std::vector<long long> moments;
        outbox.at = [&](TextView member) {
            if (member == u"Send") moments.push_back(waiting.now);
            waiting.now += 5; // each call takes its time
        };
        EXPECT_EQ(mailing(pace).go_on(), Rest::done);
        ASSERT_EQ(moments.size(), 130u);
        const double turn = 60000.0 / pace;
        for (std::size_t i = 1; i < moments.size(); ++i)
            EXPECT_NEAR(static_cast<double>(moments[i] - moments[i - 1]), turn, turn * 0.05) << pace;
    }
}

TEST_F(SendingToMany, WhoWasLateDoesNotCatchUp) {
    take_list(4);
    std::vector<long long> moments;
    outbox.at = [&](TextView member) {
        if (member != u"Send") return;
        moments.push_back(waiting.now);
        if (moments.size() == 1) waiting.now += 10'000;
    };
    mailing(30).go_on();
    ASSERT_EQ(moments.size(), 4u);
    EXPECT_GE(moments[2] - moments[1], 1900);
    EXPECT_GE(moments[3] - moments[2], 1900);
}

TEST_F(SendingToMany, APaceOfNothingIsWithoutPause) {
    take_list(50);
    const long long began = waiting.now;
    mailing(0).go_on();
    EXPECT_EQ(waiting.now, began);
    EXPECT_EQ(waiting.turns, 50);
}

TEST_F(SendingToMany, APauseIsHeardAtOnceAndGoneOnFrom) {
    take_list(5);
    Mailing one = mailing(1);
    waiting.at_wait = [&] {
        if (outbox.sent.size() == 2) one.pause();
    };
    const long long began = waiting.now;
    EXPECT_EQ(one.go_on(), Rest::paused);
    EXPECT_LE(waiting.now - began, 60'200);
    EXPECT_EQ(outbox.sent.size(), 2u);
    waiting.at_wait = [] {};
    EXPECT_EQ(one.go_on(), Rest::done);
    EXPECT_EQ(outbox.messages_by_address().size(), 5u);
    EXPECT_EQ(outbox.sent.size(), 5u);
}

TEST_F(SendingToMany, AStopIsHeardBeforeTheNextMessage) {
    take_list(5);
    Mailing one = mailing();
    waiting.at_wait = [&] { one.stop(); };
    EXPECT_EQ(one.go_on(), Rest::stopped);
    EXPECT_TRUE(outbox.sent.empty());
}

TEST_F(SendingToMany, AnErrorOfOneMessageIsNotedAndTheRestGoesOn) {
    take_list(3);
    int sends = 0;
    outbox.at = [&](TextView member) {
        if (member == u"Send" && ++sends == 2) throw host::Error(u"The recipient is not known");
    };
    Mailing one = mailing();
    EXPECT_EQ(one.go_on(), Rest::done);
    EXPECT_EQ(one.sent(), 2u);
    ASSERT_EQ(one.unsent().size(), 1u);
    EXPECT_EQ(one.unsent()[0].person->address, u"p1@x");
    EXPECT_EQ(one.unsent()[0].reason, u"The recipient is not known");
    EXPECT_FALSE(one.unsent()[0].is_unknown);
    journal.emplace(files, JournalStems{u"C:\\l.sent"}, u"0123456789ABCDEF");
    EXPECT_EQ(mailing().size(), 1u);
}

TEST_F(SendingToMany, TenErrorsInARowPauseWithTheReason) {
    take_list(25);
    bool refuses = true;
    outbox.at = [&](TextView member) {
        if (refuses && member == u"Subject") throw host::Error(u"The mail client is busy");
    };
    Mailing one = mailing();
    EXPECT_EQ(one.go_on(), Rest::too_many_errors);
    EXPECT_EQ(one.turns_taken(), 10u);
    EXPECT_EQ(one.reason(), u"The mail client is busy");
    refuses = false;
    EXPECT_EQ(one.go_on(), Rest::done);
    EXPECT_EQ(one.sent(), 15u);
}

TEST_F(SendingToMany, NineErrorsAndASuccessPauseNothing) {
    take_list(40);
    int sends = 0;
    outbox.at = [&](TextView member) {
        if (member == u"Send" && ++sends % 10 != 0) throw host::Error(u"no");
    };
    EXPECT_EQ(mailing().go_on(), Rest::done);
}

TEST_F(SendingToMany, WithoutAMailClientNobodyIsUnknown) {
    take_list(3);
    outbox.at = [](TextView) { throw host::Error(u"ActiveX component can't create object"); };
    Mailing one = mailing();
    EXPECT_EQ(one.go_on(), Rest::done);
    EXPECT_EQ(one.unsent().size(), 3u);
    EXPECT_EQ(noted(), "list 0123456789ABCDEF\r\n");
}

TEST_F(SendingToMany, AMailClientThatGoesAwayInASendLeavesOneUnknown) {
    take_list(5);
    bool is_gone = false;
    outbox.at = [&](TextView member) {
        if (member == u"Send" && outbox.sent.size() == 2) is_gone = true;
        constexpr auto call_failed = static_cast<std::int32_t>(0x800706BE);
        if (is_gone) throw host::Error(u"The remote procedure call failed", {}, call_failed);
    };
    Mailing one = mailing();
    EXPECT_EQ(one.go_on(), Rest::done);
    ASSERT_EQ(one.unsent().size(), 3u);
    EXPECT_TRUE(one.unsent()[0].is_unknown);
    EXPECT_FALSE(one.unsent()[1].is_unknown);
    journal.emplace(files, JournalStems{u"C:\\l.sent"}, u"0123456789ABCDEF");
    EXPECT_EQ(journal->state_of(u"p2@x"), Journal::State::unknown);
    EXPECT_EQ(mailing().size(), 2u);
}

TEST_F(SendingToMany, WhatCantBeNotedIsNotSent) {
    take_list(5);
    outbox.after_send = [&] {
        if (outbox.sent.size() == 2) files.refused = {u"C:\\l.sent.csv"};
    };
    Mailing one = mailing();
    EXPECT_EQ(one.go_on(), Rest::nothing_noted);
    EXPECT_EQ(outbox.sent.size(), 2u);
    EXPECT_EQ(one.go_on(), Rest::nothing_noted);
    EXPECT_EQ(outbox.sent.size(), 2u);
    EXPECT_FALSE(one.reason().empty());
    files.refused.clear();
    EXPECT_EQ(one.go_on(), Rest::done);
    for (const auto& [address, messages] : outbox.messages_by_address())
        EXPECT_EQ(messages, 1) << to_utf8(address);
    EXPECT_EQ(outbox.sent.size(), 5u);
    journal.emplace(files, JournalStems{u"C:\\l.sent"}, u"0123456789ABCDEF");
    EXPECT_EQ(mailing(0, true).size(), 0u);
}

TEST_F(SendingToMany, TellsHowFastItIsAndHowLongItStillTakes) {
    take_list(10);
    Mailing one = mailing(60);
    waiting.at_wait = [&] {
        if (outbox.sent.size() == 4) one.pause();
    };
    EXPECT_EQ(one.rate(), 0);
    one.go_on();
    EXPECT_NEAR(one.rate(), 60, 25);
    EXPECT_NEAR(static_cast<double>(one.seconds_left()), 6, 2);
    EXPECT_EQ(one.seconds_left(), static_cast<long long>(6 * 60 / one.rate()));
}

TEST_F(SendingToMany, TheUsageLogHasARowForEachMessageWithTheFlagOfBulkMail) {
    settings::MemoryStore store;
    store.save(u"Admin Settings", u"Marketing", u"Switch|ON#C|DSN=log#T|rows#R|x");
    store.save(u"User Settings", u"template", u"spring.htm");
    RecordingReports errors;
    Usage usage({store, outbox, clock, mail_client, errors});
    usage.note(u"p0@x");
    EXPECT_EQ(
        outbox.statements,
        Texts{u"insert into rows (Emailaddress, [date], template, bulkmail, program_used, sender) values "
              u"('p0@x', '11/20/2003 2:05:09 PM', 'spring.htm', 1, 'Ornavel', 'jo@example.com');"});
    EXPECT_TRUE(errors.entries.empty());
    outbox.at = [](TextView member) {
        if (member == u"Open") throw host::Error(u"no database");
    };
    usage.note(u"p1@x");
    ASSERT_EQ(errors.entries.size(), 1u);
    EXPECT_EQ(errors.entries[0].sub_function, u"MassMailer- error in the usage log");
    EXPECT_EQ(errors.entries[0].section, u"eMarketing_Err");
}

TEST_F(SendingToMany, WithoutAUsageLogNoDatabaseIsAskedFor) {
    for (const TextView marketing :
         {u"", u"Switch|OFF#C|DSN=log#T|rows", u"Switch|ON#C|#T|rows", u"Enterprise"}) {
        settings::MemoryStore store;
        store.save(u"Admin Settings", u"Marketing", marketing);
        RecordingReports errors;
        Usage({store, outbox, clock, mail_client, errors}).note(u"p0@x");
        EXPECT_TRUE(outbox.created.empty()) << to_utf8(marketing);
    }
}

TEST_F(SendingToMany, WarnsOfTheGatesThatTheMessagesPass) {
    settings::MemoryStore store;
    EXPECT_EQ(warnings(store),
              Texts{u"Some versions of the mail client ask about each message before it leaves."});
    store.save(u"Admin Settings", u"UseRedemption", u"True");
    EXPECT_EQ(warnings(store), Texts{});
    store.save(u"Admin Settings", u"UseExclaimer", u"True");
    store.save(u"Admin Settings", u"SkipInternal", u"1");
    store.save(u"User Settings", u"SendAsIs", u"True");
    store.save(u"Admin Settings", u"WipeoutPersonalStationery", u"True");
    EXPECT_EQ(warnings(store),
              (Texts{u"\"Exclaimer\" is added to the subject of each message.",
                     u"Messages to colleagues get the short internal signature.",
                     u"The first message uses up \"send as is\": your next own message is dressed.",
                     u"While the mail client has personal stationery, messages are refused."}));
}

TEST_F(SendingToMany, WarnsOfFieldsThatSomebodyHasNoValueFor) {
    take_list(3);
    table.rows[1].cells[1] = u" ";
    table.rows[2].cells.pop_back();
    EXPECT_EQ(empty_fields(table, people, *subject, *page), Texts{u"\"Name\" is empty for 2 people."});
    table.rows[1].cells[1] = u"x";
    EXPECT_EQ(empty_fields(table, people, *subject, *page), Texts{u"\"Name\" is empty for 1 person."});
    table.rows[2].cells.push_back(u"y");
    EXPECT_EQ(empty_fields(table, people, *subject, *page), Texts{});
}

} // namespace
} // namespace ornavel::mass_mailer
