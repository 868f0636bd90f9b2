#pragma once

#include "base/clock.h"
#include "base/waiting.h"
#include "programs/mass_mailer/draft.h"
#include "programs/mass_mailer/journal.h"
#include "programs/mass_mailer/letters.h"
#include "programs/mass_mailer/pace.h"
#include "programs/mass_mailer/people.h"

#include <functional>
#include <optional>

namespace ornavel::mass_mailer {

/// Why a run came to rest.
enum class Rest {
    done,
    paused,          ///< by the user
    stopped,         ///< by the user
    too_many_errors, ///< so many in a row that the next ones would hardly do better
    nothing_noted    ///< the journal can't be written, and what can't be noted is not sent
};

/// A person whose message was not sent, and why.
struct Unsent {
    const Person* person;
    Text reason;
    bool is_unknown; ///< nobody knows whether it left
};

/// Sends one message to each person of a list that has none yet. Everything that it is given outlives it.
class Mailing {
public:
    struct Needs {
        const Table& table;
        const People& people;
        const Draft& subject;
        const Draft& page;
        Journal& journal;
        MailClient& mail_client;
        const Clock& clock;
        Waiting& waiting;
        std::function<void(const Person& person)> on_sent = {};
        /// After each person's turn.
        std::function<void()> on_progress = {};
    };

    /// with_unknown: those too who were about to get a message when an earlier run ended.
    Mailing(Needs needs, int messages_a_minute, bool with_unknown);

    /// Sends until everybody had a turn, or something stops it; called again, it goes on behind the last one.
    /// Throws nothing that a message or the journal is the reason of.
    Rest go_on();
    // Take effect before the next message.
    void pause() { wanted_ = Rest::paused; }
    void stop() { wanted_ = Rest::stopped; }

    /// Messages to send in all, those whose turn is over, and those that were sent.
    std::size_t size() const { return turns_.size(); }
    std::size_t turns_taken() const { return next_; }
    std::size_t sent() const { return sent_; }
    const std::vector<Unsent>& unsent() const { return unsent_; }
    /// Why it came to rest, where that is not the user's doing.
    const Text& reason() const { return reason_; }
    /// Messages a minute while it went on; 0 where that can't be told yet.
    double rate() const;
    /// At that rate; 0 where that can't be told yet.
    long long seconds_left() const;

private:
    bool wait_for_turn();
    void take_turn(const Person& person);
    std::optional<host::MailItem> made_for(const Person& person);
    void send(const Person& person, const host::MailItem& item);
    void note_error(const Person& person, TextView reason, bool is_unknown);
    Letter letter_to(const Person& person) const;

    Needs needs_;
    Pace pace_;
    std::vector<const Person*> turns_;
    std::size_t next_ = 0, sent_ = 0;
    std::vector<Unsent> unsent_;
    int errors_in_a_row_ = 0;
    Rest wanted_ = Rest::done; ///< done: nobody wants it to rest
    Text reason_;
    long long active_ = 0; ///< milliseconds in which it went on
};

} // namespace ornavel::mass_mailer
