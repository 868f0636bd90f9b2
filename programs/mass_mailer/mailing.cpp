#include "programs/mass_mailer/mailing.h"

namespace ornavel::mass_mailer {
namespace {

constexpr int most_errors_in_a_row = 10;
/// A user who wants a pause waits no longer than this for it to be heard.
constexpr int longest_wait = 100;

/// The journal could not be written.
struct NothingNoted {
    Text reason;
};

template <class Body>
void note(Body&& body) {
    try {
        body();
    } catch (const Failure& failure) {
        throw NothingNoted{failure.description()};
    }
}

} // namespace

Mailing::Mailing(Needs needs, int messages_a_minute, bool with_unknown)
    : needs_(std::move(needs)), pace_(messages_a_minute) {
    for (const Person& person : needs_.people.people) {
        const Journal::State state = needs_.journal.state_of(person.address);
        if (state == Journal::State::open || (with_unknown && state == Journal::State::unknown))
            turns_.push_back(&person);
    }
}

Rest Mailing::go_on() {
    wanted_ = Rest::done;
    reason_.clear();
    errors_in_a_row_ = 0;
    pace_.begin_anew();
    try {
        note([&] { needs_.journal.begin(); });
        while (next_ < turns_.size()) {
            if (!wait_for_turn()) return wanted_;
            take_turn(*turns_[next_]);
            if (needs_.on_progress) needs_.on_progress();
            if (errors_in_a_row_ == most_errors_in_a_row) return Rest::too_many_errors;
        }
    } catch (const NothingNoted& failure) {
        reason_ = failure.reason;
        return Rest::nothing_noted;
    }
    return Rest::done;
}

bool Mailing::wait_for_turn() {
    const long long began = needs_.waiting.milliseconds();
    needs_.waiting.wait(0);
    for (;;) {
        const long long now = needs_.waiting.milliseconds();
        if (wanted_ != Rest::done) return false;
        const double left = pace_.left(now);
        if (left <= 0) {
            pace_.take(now);
            active_ += now - began;
            return true;
        }
        needs_.waiting.wait(std::min(longest_wait, static_cast<int>(left) + 1));
    }
}

Letter Mailing::letter_to(const Person& person) const {
    const auto& cells = needs_.table.rows[person.row].cells;
    return {person.address, needs_.subject.filled(cells), needs_.page.filled(cells)};
}

void Mailing::take_turn(const Person& person) {
    const long long began = needs_.waiting.milliseconds();
    if (const auto item = made_for(person)) send(person, *item);
    active_ += needs_.waiting.milliseconds() - began;
}

/// What fails before the message is sent has left no trace in the journal: the person is as before.
std::optional<host::MailItem> Mailing::made_for(const Person& person) {
    try {
        return needs_.mail_client.made(letter_to(person));
    } catch (const std::exception&) {
        note_error(person, current_description(), false);
        ++next_;
        return {};
    }
}

/// From here on the person's turn is over, whatever happens: nobody is tried twice.
void Mailing::send(const Person& person, const host::MailItem& item) {
    note([&] { needs_.journal.note_sending(person.address); });
    ++next_;
    try {
        item.send();
    } catch (const std::exception& error) {
        const auto* answer = dynamic_cast<const host::Error*>(&error);
        const bool is_refused = answer && is_refusal(*answer);
        note_error(person, current_description(), !is_refused);
        if (is_refused) note([&] { needs_.journal.note_refused(person.address, needs_.clock.now()); });
        return;
    }
    ++sent_;
    errors_in_a_row_ = 0;
    note([&] { needs_.journal.note_sent(person.address, needs_.clock.now()); });
    if (needs_.on_sent) needs_.on_sent(person);
}

void Mailing::note_error(const Person& person, TextView reason, bool is_unknown) {
    unsent_.push_back({&person, Text(reason), is_unknown});
    reason_ = reason;
    ++errors_in_a_row_;
}

double Mailing::rate() const {
    return active_ > 0 ? static_cast<double>(next_) * 60000.0 / static_cast<double>(active_) : 0;
}

long long Mailing::seconds_left() const {
    const double a_minute = rate();
    return a_minute > 0 ? static_cast<long long>(static_cast<double>(turns_.size() - next_) * 60 / a_minute)
                        : 0;
}

} // namespace ornavel::mass_mailer
