#include "programs/mass_mailer/mailing.h"

#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/mass_mailer/fake_mail_client.h"
#include "tests/mass_mailer/fake_waiting.h"

#include <gtest/gtest.h>

#include <cstdlib>

// Nobody gets two messages, nobody is forgotten, wherever the program ends.

namespace ornavel::mass_mailer {
namespace {

/// The program ends here. It is no error, so nothing that catches errors sees it.
struct Ended {};

/// Counts the places where the program may end, and ends it at one of them.
class Fate {
public:
    int ends_at = 0; ///< from 1; 0 for never
    int reached = 0;
    void place() {
        if (++reached == ends_at) throw Ended();
    }
};

/// A disk on which the program may end before a line, in the middle of it, and behind it.
class FatefulFiles final : public Files {
public:
    explicit FatefulFiles(Fate& fate) : fate_(fate) {}
    MemoryFiles disk;

    bool file_exists(TextView path) const override { return disk.file_exists(path); }
    bool folder_exists(TextView path) const override { return disk.folder_exists(path); }
    std::vector<Text> list(TextView folder) const override { return disk.list(folder); }
    std::vector<Text> list_folders(TextView folder) const override { return disk.list_folders(folder); }
    std::string read(TextView path) const override { return disk.read(path); }
    void write(TextView path, std::string_view bytes) override { disk.write(path, bytes); }
    void append(TextView path, std::string_view bytes) override {
        fate_.place();
        disk.append(path, bytes.substr(0, bytes.size() / 2));
        fate_.place();
        disk.append(path, bytes.substr(bytes.size() / 2));
        fate_.place();
    }
    void remove(TextView path) override { disk.remove(path); }
    void move(TextView from, TextView to) override { disk.move(from, to); }
    void create_folder(TextView path) override { disk.create_folder(path); }
    void remove_folder(TextView path) override { disk.remove_folder(path); }
    bool leads_elsewhere(TextView folder) const override { return disk.leads_elsewhere(folder); }
    const CodePage& ansi() const override { return disk.ansi(); }

private:
    Fate& fate_;
};

/// A list, a mail client and a disk that outlive the program.
class World {
public:
    explicit World(int people_count) {
        Text list = u"Mail\r\n";
        for (int i = 0; i < people_count; ++i) list += u"p" + to_text(i) + u"@example.com\r\n";
        table_ = read_table(to_utf8(list), windows_1252());
        people_ = people_of(table_, 0);
        client.at = [this](TextView member) {
            if (member == u"Send") fate.place();
        };
        client.after_send = [this] { fate.place(); };
    }

    /// Starts the program; false when it ends at its fate.
    bool play() {
        try {
            Journal journal = this->journal();
            MailClient mail_client(client, false);
            const Draft text(u"Hello", Draft::Kind::line, table_.columns);
            Mailing mailing({table_, people_, text, text, journal, mail_client, clock_, waiting_}, 0, false);
            EXPECT_EQ(mailing.go_on(), Rest::done);
            return true;
        } catch (const Ended&) {
            return false;
        }
    }
    /// What the promise says after so many ends of the program.
    ::testing::AssertionResult holds(int ends) {
        const Journal notes = journal();
        const auto counts = client.messages_by_address();
        int unknown = 0;
        for (const Person& person : people_.people) {
            const auto found = counts.find(person.address);
            const int messages = found == counts.end() ? 0 : found->second;
            const bool is_unknown = notes.state_of(person.address) == Journal::State::unknown;
            unknown += is_unknown;
            if (messages > 1 || (messages == 0 && !is_unknown))
                return ::testing::AssertionFailure() << to_utf8(person.address) << " has " << messages;
        }
        if (unknown > ends) return ::testing::AssertionFailure() << unknown << " are unknown after " << ends;
        return ::testing::AssertionSuccess();
    }

    Fate fate;
    FakeMailClient client;

private:
    Journal journal() { return {files_, JournalStems{u"C:\\lists\\l.sent"}, u"0123456789ABCDEF"}; }

    FatefulFiles files_{fate};
    Table table_;
    People people_;
    FixedClock clock_;
    FakeWaiting waiting_;
};

int places_of_a_whole_run(int people) {
    World world(people);
    EXPECT_TRUE(world.play());
    return world.fate.reached;
}

/// More people make the test longer, and no more certain.
int people_of_the_long_test() {
    const char* wanted = std::getenv("ORNAVEL_PEOPLE");
    return wanted ? std::atoi(wanted) : 40;
}

TEST(ThePromise, HoldsWhereverTheProgramEndsOnce) {
    const int people = people_of_the_long_test();
    const int places = places_of_a_whole_run(people);
    ASSERT_EQ(places, 3 + people * 8); // the header; two lines and a message for each
    for (int place = 1; place <= places; ++place) {
        World world(people);
        world.fate.ends_at = place;
        ASSERT_FALSE(world.play()) << place;
        world.fate.ends_at = 0;
        ASSERT_TRUE(world.play()) << place;
        ASSERT_TRUE(world.holds(1)) << place;
    }
}

TEST(ThePromise, HoldsWhereTheProgramEndsAgainAndAgain) {
    constexpr int most_ends = 40;
    for (int place = 1; place <= 11; ++place) {
        World world(30);
        int ends = 0;
        for (bool is_done = false; !is_done && ends < most_ends; ends += !is_done) {
            world.fate = {.ends_at = place, .reached = 0};
            is_done = world.play();
        }
        ASSERT_GT(ends, 0) << place;
        world.fate = {};
        ASSERT_TRUE(world.play()) << place;
        EXPECT_TRUE(world.holds(ends)) << place;
    }
}

TEST(ThePromise, IsBrokenByAProgramThatForgetsItsJournal) {
    World world(5);
    world.fate.ends_at = 30;
    ASSERT_FALSE(world.play());
    World other(5); // an empty disk
    other.client.sent = world.client.sent;
    ASSERT_TRUE(other.play());
    EXPECT_FALSE(other.holds(1));
}

} // namespace
} // namespace ornavel::mass_mailer
