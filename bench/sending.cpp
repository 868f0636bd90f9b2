#include "bench/sending.h"

#include "bench/harness.h"
#include "programs/mass_mailer/mailing.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/mass_mailer/fake_mail_client.h"
#include "tests/mass_mailer/fake_waiting.h"

#include <cstdlib>

namespace ornavel::bench {
namespace {

using namespace mass_mailer;

std::string list_of(int people) {
    std::string list = "Name;E-mail;Town\r\n";
    for (int i = 0; i < people; ++i) {
        const std::string number = std::to_string(i);
        list += "Person " + number + ";person." + number + "@example.com;\"Town, " + number + "\"\r\n";
    }
    return list;
}

/// As the window lists them.
std::size_t read_check_and_list(const std::string& bytes) {
    const Table table = read_table(bytes, windows_1252());
    const People people = people_of(table, likely_address_column(table));
    std::vector<Text> shown;
    for (const Person& person : people.people) shown.push_back(person.address);
    return shown.size();
}

/// A disk that keeps nothing, so that only what the run keeps is measured.
class ForgetfulFiles final : public Files {
public:
    bool file_exists(TextView) const override { return false; }
    bool folder_exists(TextView) const override { return true; }
    std::vector<Text> list(TextView) const override { return {}; }
    std::vector<Text> list_folders(TextView) const override { return {}; }
    std::string read(TextView) const override { return {}; }
    void write(TextView, std::string_view) override {}
    void append(TextView, std::string_view) override {}
    void remove(TextView) override {}
    void move(TextView, TextView) override {}
    void create_folder(TextView) override {}
    void remove_folder(TextView) override {}
    bool leads_elsewhere(TextView) const override { return false; }
    const CodePage& ansi() const override { return windows_1252(); }
};

/// The bytes on the heap after the first tenth of a run, and after all of it.
std::pair<double, double> heap_in_a_run(int messages) {
    const Table table = read_table(list_of(messages), windows_1252());
    const People people = people_of(table, 1);
    const Draft subject(u"Hello {{Name}}", Draft::Kind::line, table.columns);
    const Draft page(Text(20'000, u'x') + u"{{Town}}", Draft::Kind::html, table.columns);
    ForgetfulFiles files;
    Journal journal(files, {u"C:\\list.sent"}, u"0123456789ABCDEF");
    FakeMailClient outbox;
    outbox.after_send = [&] { outbox.sent.clear(); };
    MailClient client(outbox, false);
    const FixedClock clock;
    FakeWaiting waiting;
    Mailing mailing({table, people, subject, page, journal, client, clock, waiting}, 0, false);
    std::size_t early = 0;
    waiting.at_wait = [&] {
        if (mailing.turns_taken() == static_cast<std::size_t>(messages / 10)) early = heap_bytes();
    };
    if (mailing.go_on() != Rest::done) std::abort();
    return {static_cast<double>(early), static_cast<double>(heap_bytes())};
}

} // namespace

void print_sending() {
    const std::string list = list_of(10'000);
    const Run runs[] = {hashing, [&] {
                            return seconds([&] {
                                if (read_check_and_list(list) != 10'000) std::abort();
                            });
                        }};
    const auto times = medians(runs, 51);
    // The second that nobody minds to wait would be some hundred times that.
    print_row("10,000 people read, checked and listed", times[1] / times[0], "x hash", 2000);
    const auto [early, late] = heap_in_a_run(10'000);
    print_row("memory after 10,000 messages over that after 1,000", late / early, "", 1.01);
}

} // namespace ornavel::bench
