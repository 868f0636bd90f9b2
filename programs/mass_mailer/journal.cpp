#include "programs/mass_mailer/journal.h"

#include "diagnostics/error_log.h"
#include "programs/mass_mailer/addresses.h"

#include <algorithm>
#include <cstdint>
#include <functional>

namespace ornavel::mass_mailer {
namespace {

constexpr TextView header_word = u"list ", sending_word = u"sending ", sent_word = u"sent ",
                   refused_word = u"refused ";
constexpr TextView extension = u".csv";
/// Ends a line that was cut off, so that nobody takes it for a whole one.
constexpr TextView cut_off_mark = u" ...";
constexpr std::size_t moment_size = 19; // of every date in a log

class Hash {
public:
    void add(TextView text) {
        for (const char16_t unit : text) add_unit(unit);
        add_unit(0xFFFF); // where one text ends counts as well
    }
    Text digits() const {
        Text text;
        for (int shift = 60; shift >= 0; shift -= 4) text += u"0123456789ABCDEF"[state_ >> shift & 15];
        return text;
    }

private:
    void add_unit(char16_t unit) {
        state_ = (state_ ^ (unit & 0xFF)) * 1099511628211U;
        state_ = (state_ ^ (unit >> 8)) * 1099511628211U;
    }
    std::uint64_t state_ = 14695981039346656037U;
};

std::pair<Text, Text> folder_and_name(TextView path) {
    const auto slash = path.find_last_of(u"\\/");
    if (slash == TextView::npos) return {Text(), Text(path)};
    return {Text(path.substr(0, slash)), Text(path.substr(slash + 1))};
}

/// Whether a file is the journal "STEM.csv", or "STEM.2.csv" and so on.
bool is_journal_name(TextView file, TextView stem) {
    if (file.size() < stem.size() + extension.size() || !same_name(file.substr(0, stem.size()), stem) ||
        !same_name(file.substr(file.size() - extension.size()), extension))
        return false;
    const TextView number = file.substr(stem.size(), file.size() - stem.size() - extension.size());
    return number.empty() || (number.size() > 1 && number[0] == '.' &&
                              number.find_first_not_of(u"0123456789", 1) == TextView::npos);
}

/// The whole lines. A line break within one is none of ours.
void for_each_line(TextView text, const std::function<void(TextView line)>& take) {
    for (auto end = text.find(line_end); end != TextView::npos; end = text.find(line_end)) {
        const TextView line = text.substr(0, end);
        if (!line.ends_with(cut_off_mark)) take(line);
        text.remove_prefix(end + line_end.size());
    }
}

/// What follows the word, without the moment at its end.
Text key_of(TextView line, TextView word, bool has_moment) {
    line.remove_prefix(word.size());
    if (has_moment) line.remove_suffix(std::min(line.size(), moment_size + 1));
    return address_key(line);
}

} // namespace

Text hash_of(TextView subject, TextView page, TextView list, std::size_t address_column) {
    Hash hash;
    hash.add(subject);
    hash.add(page);
    hash.add(list);
    hash.add(to_text(static_cast<long long>(address_column)));
    return hash.digits();
}

JournalStems journal_stems(TextView list_path, TextView user_folder) {
    JournalStems stems;
    const auto [folder, file] = folder_and_name(list_path);
    const Text name = list_path.empty() ? Text(u"pasted") : file.substr(0, file.rfind(u'.'));
    if (!list_path.empty()) stems.push_back(folder + u"\\" + name + u".sent");
    if (!user_folder.empty()) stems.push_back(Text(user_folder) + u"\\" + name + u".sent");
    return stems;
}

Journal::Journal(Files& files, const JournalStems& stems, Text hash)
    : files_(files), stems_(stems), header_(Text(header_word) + std::move(hash) + Text(line_end)) {
    for (const Text& stem : stems_) {
        const auto [folder, name] = folder_and_name(stem);
        for (const Text& file : files_.list(folder))
            if (is_journal_name(file, name)) look_at(folder + u"\\" + file);
    }
}

void Journal::look_at(const Text& path) {
    const Text text = from_utf8(files_.read(path));
    const TextView lines = text;
    if (lines.starts_with(header_) && !is_begun()) {
        path_ = path;
        is_cut_off_ = !lines.ends_with(line_end);
        take_notes(lines.substr(header_.size()));
    } else if (lines.starts_with(header_word)) {
        if (contains(lines, Text(line_end) + Text(sending_word))) others_.push_back(path);
        take_others_notes(lines);
    }
}

void Journal::take_notes(TextView lines) {
    for_each_line(lines, [this](TextView line) {
        if (line.starts_with(sending_word)) ++notes_[key_of(line, sending_word, false)].unanswered;
        if (line.starts_with(refused_word)) --notes_[key_of(line, refused_word, true)].unanswered;
        if (line.starts_with(sent_word)) notes_[key_of(line, sent_word, true)].sent = true;
    });
}

void Journal::take_others_notes(TextView lines) {
    for_each_line(lines, [this](TextView line) {
        if (line.starts_with(sent_word)) sent_by_others_.insert(key_of(line, sent_word, true));
    });
}

Journal::State Journal::state_of(TextView address) const {
    const auto found = notes_.find(address_key(address));
    if (found == notes_.end()) return State::open;
    if (found->second.sent) return State::sent;
    return found->second.unanswered > 0 ? State::unknown : State::open;
}

bool Journal::is_sent_by_others(TextView address) const {
    return sent_by_others_.contains(address_key(address));
}

Text Journal::free_path(const Text& stem) const {
    Text path = stem + Text(extension);
    for (int number = 2; files_.file_exists(path); ++number)
        path = stem + u"." + to_text(number) + Text(extension);
    return path;
}

void Journal::begin() {
    if (!owed_.empty()) write_line({}, false);
    if (is_begun()) return;
    for (const Text& stem : stems_) {
        try {
            files_.create_folder(folder_and_name(stem).first);
            const Text path = free_path(stem);
            files_.append_durably(path, to_utf8(header_));
            path_ = path;
            return;
        } catch (const Failure&) {
            if (stem == stems_.back()) throw;
        }
    }
    throw Failure(u"There is no folder for the journal");
}

void Journal::note_sending(TextView address) {
    write_line(Text(sending_word) + Text(address) + Text(line_end), false);
}

void Journal::note_sent(TextView address, const LocalTime& time) {
    write_line(Text(sent_word) + Text(address) + u" " + diagnostics::log_date(time) + Text(line_end), true);
}

void Journal::note_refused(TextView address, const LocalTime& time) {
    write_line(Text(refused_word) + Text(address) + u" " + diagnostics::log_date(time) + Text(line_end),
               true);
}

void Journal::write_line(Text line, bool is_owed) {
    Text whole = is_cut_off_ ? Text(cut_off_mark) + Text(line_end) + owed_ : owed_;
    whole += line;
    is_cut_off_ = true;
    if (is_owed) owed_ += line;
    files_.append_durably(path_, to_utf8(whole));
    is_cut_off_ = false;
    owed_.clear();
}

} // namespace ornavel::mass_mailer
