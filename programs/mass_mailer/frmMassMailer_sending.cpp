// What Send to Many asks, does and tells when its user presses Start.
#include "programs/mass_mailer/frmMassMailer.h"

#include "programs/mass_mailer/frmMassMailer_design.h"
#include "programs/mass_mailer/warnings.h"

#include <algorithm>

namespace ornavel::mass_mailer {

using namespace forms;

namespace {

constexpr std::size_t most_addresses_told = 10;

Text counted(std::size_t count, TextView one, TextView several) {
    return to_text(static_cast<long long>(count)) + u" " + Text(count == 1 ? one : several);
}

/// One sentence a line.
Text joined(const std::vector<Text>& lines) {
    Text text;
    for (const Text& line : lines) text += (text.empty() ? u"" : u"\r\n") + line;
    return text;
}

Text time_left(long long seconds) {
    if (seconds < 60) return u"less than a minute left";
    return counted(static_cast<std::size_t>((seconds + 30) / 60), u"minute left", u"minutes left");
}

} // namespace

struct frmMassMailer::Sending {
    Sending(Journal its_journal, frmMassMailer& form, bool with_unknown)
        : journal(std::move(its_journal)),
          mail_client(form.platform_.objects, is_on(form.platform_.settings, settings::admin::UseRedemption)),
          usage({form.platform_.settings, form.platform_.objects, form.platform_.clock, mail_client,
                 form.errors_}),
          mailing({form.table_, form.people_, form.subject_draft_, form.page_draft_, journal, mail_client,
                   form.platform_.clock, *form.platform_.waiting,
                   [this](const Person& person) { usage.note(person.address); },
                   [&form] { form.show_progress(); }},
                  form.pace(), with_unknown) {}
    Journal journal;
    MailClient mail_client;
    Usage usage;
    Mailing mailing;
};

int frmMassMailer::pace() {
    const Text text = trim(form_[u"txtPace"].text);
    const bool is_number = !text.empty() && text.find_first_not_of(u"0123456789") == Text::npos;
    return is_number ? numeric_value(text) : -1;
}

std::vector<Text> frmMassMailer::problems() {
    if (people_.people.empty()) return {u"There is nobody to send to."};
    std::vector<Text> found = subject_draft_.problems();
    for (const Text& problem : page_draft_.problems())
        if (std::ranges::find(found, problem) == found.end()) found.push_back(problem);
    if (pace() < 0) found.emplace_back(u"How many messages a minute? 0 is without pause.");
    return found;
}

/// What is sent is what the window shows, also after a change that broke off for want of memory.
bool frmMassMailer::is_ready() {
    take_drafts();
    const std::vector<Text> found = problems();
    if (!found.empty()) inform(joined(found));
    return found.empty();
}

frmMassMailer::Standing frmMassMailer::standing_of(const Journal& journal) const {
    Standing standing;
    for (const Person& person : people_.people) {
        const auto state = journal.state_of(person.address);
        standing.open += state == Journal::State::open;
        standing.unknown += state == Journal::State::unknown;
        standing.sent += state == Journal::State::sent;
        standing.sent_by_others += journal.is_sent_by_others(person.address);
    }
    return standing;
}

void frmMassMailer::cmdStart_Click() {
    try {
        if (is_ready()) begin();
    } catch (const Failure& failure) {
        inform(failure.description());
    }
}

void frmMassMailer::begin() {
    const Text hash = hash_of(form_[u"txtSubject"].text, page_, list_,
                              static_cast<std::size_t>(form_[u"cboAddressColumn"].index));
    Journal journal(platform_.files, journal_stems(list_path_, platform_.user_folder), hash);
    const Standing standing = standing_of(journal);
    list_people(&journal);
    if (standing.open + standing.unknown == 0)
        return inform(u"Everybody on this list has this message already.");
    const bool with_unknown = standing.unknown != 0 && wants_unknown(journal, standing.unknown);
    const std::size_t messages = standing.open + (with_unknown ? standing.unknown : 0);
    if (messages == 0 || !agrees(journal, standing, messages)) return;
    sending_ = std::make_shared<Sending>(std::move(journal), *this, with_unknown);
    go_on();
}

bool frmMassMailer::wants_unknown(const Journal& journal, std::size_t count) {
    std::vector<Text> lines{u"Sending ended in the middle. Nobody knows whether " +
                            counted(count, u"person has the message", u"people have the message") + u":"};
    for (const Person& person : people_.people)
        if (journal.state_of(person.address) == Journal::State::unknown &&
            lines.size() <= most_addresses_told)
            lines.push_back(person.address);
    if (count > most_addresses_told) lines.emplace_back(u"…");
    lines.emplace_back(u"\r\nSend it to them, even if they get it twice?");
    return platform_.windows.ask_risky(window_title, joined(lines));
}

bool frmMassMailer::agrees(const Journal& journal, const Standing& standing, std::size_t messages) {
    std::vector<Text> lines{u"Send " + counted(messages, u"message?", u"messages?") + u"\r\n"};
    if (standing.sent != 0)
        lines.push_back(counted(standing.sent, u"person has", u"people have") +
                        u" this message already and will not get it again.");
    if (!journal.is_begun() && !journal.others().empty())
        lines.push_back(
            u"The list or the message is another one than in " + journal.others().front() +
            u", so this run has a journal of its own. By the earlier ones " +
            counted(standing.sent_by_others, u"person of this list has", u"people of this list have") +
            u" a message.");
    if (trim(form_[u"txtSubject"].text).empty()) lines.emplace_back(u"The message has no subject.");
    if (!is_tested_) lines.emplace_back(u"No test message was sent yet.");
    if (!people_.rejected.empty())
        lines.push_back(counted(people_.rejected.size(), u"line", u"lines") +
                        u" of the list can't be sent to.");
    for (Text& line : empty_fields(table_, people_, subject_draft_, page_draft_))
        lines.push_back(std::move(line));
    for (Text& line : warnings(platform_.settings)) lines.push_back(std::move(line));
    return platform_.windows.ask_risky(window_title, joined(lines));
}

void frmMassMailer::go_on() {
    // The user may close the window while it sends.
    const auto sending = sending_;
    take_phase(Phase::running);
    sending->mail_client.forget();
    show_progress();
    const Rest rest = sending->mailing.go_on();
    if (form_.is_loaded()) show_rest(rest);
}

void frmMassMailer::cmdPause_Click() {
    if (!sending_) return;
    if (phase_ == Phase::paused) return go_on();
    sending_->mailing.pause();
}

void frmMassMailer::cmdStop_Click() {
    if (!sending_) return;
    sending_->mailing.stop();
    if (phase_ == Phase::paused && form_.is_loaded()) show_rest(Rest::stopped);
}

void frmMassMailer::show_progress() {
    const Mailing& mailing = sending_->mailing;
    const std::size_t size = std::max<std::size_t>(1, mailing.size());
    form_[u"prgSent"].value = static_cast<int>(100 * mailing.turns_taken() / size);
    Text words = to_text(static_cast<long long>(mailing.sent())) + u" of " +
                 counted(mailing.size(), u"message sent", u"messages sent");
    if (phase_ == Phase::running && mailing.rate() > 0)
        words += u", " + to_text(static_cast<long long>(mailing.rate() + 0.5)) + u" a minute, " +
                 time_left(mailing.seconds_left());
    form_[u"lblProgress"].caption = words;
    form_.show_changes();
}

void frmMassMailer::show_rest(Rest rest) {
    const bool is_over = rest == Rest::done || rest == Rest::stopped;
    take_phase(is_over ? Phase::choosing : Phase::paused);
    show_progress();
    unsent_.clear();
    for (const Unsent& one : sending_->mailing.unsent())
        unsent_.push_back(one.person->address + u": " + one.reason +
                          (one.is_unknown ? u" (nobody knows whether it was sent)" : u""));
    list_rejected();
    const auto sending = sending_;
    if (is_over) sending_.reset();
    const Text reason = u" " + sending->mailing.reason();
    if (rest == Rest::too_many_errors)
        inform(u"Ten messages in a row could not be sent:" + reason + u"\r\nMend that, then press Resume.");
    if (rest == Rest::nothing_noted)
        inform(u"What was sent can't be noted, so nothing more is sent:" + reason +
               u"\r\nMend that, then press Resume.");
    if (rest == Rest::done) tell_end(sending->mailing);
}

void frmMassMailer::tell_end(const Mailing& mailing) {
    Text text = counted(mailing.sent(), u"message was sent.", u"messages were sent.");
    if (const std::size_t unsent = mailing.unsent().size())
        text += u"\r\n" + counted(unsent, u"was not: it stands first among those not sent to.",
                                  u"were not: they stand first among those not sent to.");
    inform(text);
}

void frmMassMailer::cmdTest_Click() {
    try {
        if (!is_ready()) return;
        MailClient mail_client(platform_.objects, is_on(platform_.settings, settings::admin::UseRedemption));
        Letter letter = letter_to(people_.people[shown_]);
        letter.address = compose::sender_of(mail_client.application());
        mail_client.made(letter).send();
        is_tested_ = true;
        inform(u"A test message was sent to " + letter.address + u".");
    } catch (const Failure& failure) {
        inform(u"The test message was not sent: " + failure.description());
    }
}

void frmMassMailer::take_phase(Phase phase) {
    phase_ = phase;
    const bool choosing = phase == Phase::choosing, sends_to_somebody = !people_.people.empty();
    for (const TextView name : {u"txtSubject", u"txtList", u"cmdOpenList", u"txtPace"})
        form_[name].enabled = choosing;
    form_[u"cboAddressColumn"].enabled = choosing && table_.columns.size() > 1;
    form_[u"cmdStart"].enabled = form_[u"cmdTest"].enabled = choosing && sends_to_somebody;
    form_[u"cmdPause"].enabled = form_[u"cmdStop"].enabled = !choosing;
    form_[u"cmdPause"].caption = phase == Phase::paused ? design::resume_caption : design::pause_caption;
}

} // namespace ornavel::mass_mailer
