#include "programs/mass_mailer/mailing.h"

#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/mass_mailer/fake_mail_client.h"
#include "tests/mass_mailer/fake_waiting.h"
#include "tests/mass_mailer/stops.h"

#include <gtest/gtest.h>

#include <cstdlib>

// Nobody gets two messages, nobody is forgotten, wherever the program ends.

namespace ornavel::mass_mailer {
namespace {

/// The program ends here. It is no error, so nothing that catches errors sees it.
struct Ended {};

/// Where the program may end: before, within or behind a line of the journal or a message.
struct Place {
    std::string_view moment, thing;
    bool operator==(const Place&) const = default;
};

/// Counts the places where the program may end, and ends it at one of them.
class Fate {
public:
    int ends_at = 0; ///< from 1; 0 for never
    int reached = 0;
    Place ended_at; ///< once it has
    void reach(const Place& place) {
        if (++reached != ends_at) return;
        ended_at = place;
        throw Ended();
    }
};

/// What a line of the journal is about, by its first word.
std::string_view line_in(std::string_view bytes) {
    for (const std::string_view line : {"list", "sending", "sent"})
        if (bytes.starts_with(std::string(line) + " ")) return line;
    return "mended";
}

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
        const std::string_view line = line_in(bytes);
        fate_.reach({"before", line});
        disk.append(path, bytes.substr(0, bytes.size() / 2));
        fate_.reach({"within", line});
        disk.append(path, bytes.substr(bytes.size() / 2));
        fate_.reach({"behind", line});
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

struct MailingList {
    explicit MailingList(int size) {
        Text list = u"Mail\r\n";
        for (int i = 0; i < size; ++i) list += u"p" + to_text(i) + u"@example.com\r\n";
        table = read_table(to_utf8(list), windows_1252());
        people = people_of(table, 0);
    }
    Table table;
    People people;
};

/// A mail client and a disk that outlive the program. The list outlives the world.
class World {
public:
    explicit World(const MailingList& list) : list_(list) {
        client.at = [this](TextView member) {
            if (member == u"Send") fate.reach({"before", "Send"});
        };
        client.after_send = [this] { fate.reach({"behind", "Send"}); };
    }

    /// Starts the program; false when it ends at its fate.
    bool play() {
        try {
            Journal journal = this->journal();
            MailClient mail_client(client, false);
            const Draft text(u"Hello", Draft::Kind::line, list_.table.columns);
            Mailing mailing({list_.table, list_.people, text, text, journal, mail_client, clock_, waiting_},
                            0, false);
            EXPECT_EQ(mailing.go_on(), Rest::done);
            return true;
        } catch (const Ended&) {
            return false;
        }
    }
    Tally tally() {
        const Journal notes = journal();
        const auto counts = client.messages_by_address();
        Tally tally;
        for (const Person& person : list_.people.people) {
            const auto found = counts.find(person.address);
            const int messages = found == counts.end() ? 0 : found->second;
            const bool is_unknown = notes.state_of(person.address) == Journal::State::unknown;
            tally.with_two += messages > 1;
            tally.forgotten += messages == 0 && !is_unknown;
            tally.unknown_with_one += messages == 1 && is_unknown;
            tally.unknown_without += messages == 0 && is_unknown;
        }
        return tally;
    }

    Fate fate;
    FakeMailClient client;

private:
    Journal journal() { return {files_, JournalStems{u"C:\\lists\\l.sent"}, u"0123456789ABCDEF"}; }

    const MailingList& list_;
    FatefulFiles files_{fate};
    FixedClock clock_;
    FakeWaiting waiting_;
};

int places_of_a_whole_run(const MailingList& list) {
    World world(list);
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
    const MailingList list(people);
    const int places = places_of_a_whole_run(list);
    ASSERT_EQ(places, 3 + people * 8); // the header; two lines and a message for each
    Stops stops;
    for (int place = 1; place <= places; ++place) {
        World world(list);
        world.fate.ends_at = place;
        ASSERT_FALSE(world.play()) << place;
        const Place end = world.fate.ended_at;
        world.fate.ends_at = 0;
        ASSERT_TRUE(world.play()) << place;
        const Tally tally = world.tally();
        EXPECT_TRUE(tally.keeps_the_promise(1)) << place;
        stops.add(std::string(end.moment) + " \"" + std::string(end.thing) + "\"", 1, tally);
    }
    stops.print(people);
}

TEST(ThePromise, HoldsWhereTheProgramEndsAgainAndAgain) {
    constexpr int most_ends = 40, people = 30;
    const MailingList list(people);
    Stops stops;
    for (int place = 1; place <= 11; ++place) {
        World world(list);
        int ends = 0;
        for (bool is_done = false; !is_done && ends < most_ends; ends += !is_done) {
            world.fate = {.ends_at = place, .reached = 0, .ended_at = {}};
            is_done = world.play();
        }
        ASSERT_GT(ends, 0) << place;
        world.fate = {};
        ASSERT_TRUE(world.play()) << place;
        const Tally tally = world.tally();
        EXPECT_TRUE(tally.keeps_the_promise(ends)) << place;
        stops.add("at place " + std::to_string(place) + " of each run", ends, tally);
    }
    stops.print(people);
}

TEST(ThePromise, IsBrokenByAProgramThatForgetsItsJournal) {
    const MailingList list(5);
    World world(list);
    world.fate.ends_at = 30;
    ASSERT_FALSE(world.play());
    World other(list); // an empty disk
    other.client.sent = world.client.sent;
    ASSERT_TRUE(other.play());
    EXPECT_FALSE(other.tally().keeps_the_promise(1));
}

} // namespace
} // namespace ornavel::mass_mailer
