#include "workbench/log_reader.h"

#include "connect/send_pipeline.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

constexpr TextView check_word = u"System Check: ", date_word = u"Date: ", handler = u"ol_ItemSend";
constexpr std::size_t date_length = 19; // "mm-dd-yyyy hh:mm:ss"

struct Line {
    Text date, words;
    bool is_check;
};

std::optional<Line> line_of(const Text& text) {
    const bool check = text.starts_with(check_word);
    if (!check && !text.starts_with(date_word)) return {};
    const TextView rest = TextView(text).substr(check ? check_word.size() : date_word.size());
    if (rest.size() < date_length + 2 || rest.substr(date_length, 2) != u", ") return {};
    return Line{Text(rest.substr(0, date_length)), Text(rest.substr(date_length + 2)), check};
}

struct Record {
    Text label;
    int number;
};

/// "Subject OK, Check 5, Send Event"
std::optional<Record> record_in(const Text& words) {
    constexpr TextView end = u", Send Event", middle = u", Check ";
    if (!words.ends_with(end)) return {};
    const auto number = words.rfind(middle);
    if (number == Text::npos) return {};
    return Record{words.substr(0, number), numeric_value(TextView(words).substr(number + middle.size()))};
}

class LogReader {
public:
    std::vector<LoggedSend> read(TextView log) {
        std::size_t number = 0;
        for (const Text& text : lines_of(log)) {
            ++number;
            const auto line = line_of(text);
            if (!line) continue;
            if (line->is_check)
                take_check(*line, number);
            else
                take_error(line->words);
        }
        return std::move(sends_);
    }

private:
    void take_check(const Line& line, std::size_t number) {
        if (const auto record = record_in(line.words)) return take_record(*record, line, number);
        if (line.words.starts_with(u"Resend from")) {
            const bool sent_items = contains(line.words, u"Sent Items");
            sends_.push_back({line.date, number, {}});
            sends_.back().resend_gate = sent_items ? u"resend from Sent Items" : u"resend from the Outbox";
        } else if (!sends_.empty() && line.words.starts_with(connect::marker_was_loaded)) {
            sends_.back().marker_loaded = true;
        }
    }

    /// A send may wait while another runs: its numbers say to which a record belongs.
    void take_record(const Record& record, const Line& line, std::size_t number) {
        if (record.label == connect::pipeline_began && record.number == 1) {
            const bool resent =
                !sends_.empty() && !sends_.back().resend_gate.empty() && sends_.back().records.empty();
            if (!resent) sends_.push_back({line.date, number, {}});
            sends_.back().resend_gate.clear(); // it went on
        }
        const auto owner = std::ranges::find_if(sends_.rbegin(), sends_.rend(), [&](const LoggedSend& send) {
            return static_cast<int>(send.records.size()) == record.number - 1 && send.resend_gate.empty();
        });
        if (owner != sends_.rend()) owner->records.push_back(record.label);
    }

    /// In either of the two forms: "ol_ItemSend, GATE, DESCRIPTION" or "DESCRIPTION - ol_ItemSend - GATE".
    void take_error(const Text& words) {
        if (sends_.empty()) return;
        take_error_of(sends_.back(), words);
        // An error that is only noted, such as a version that can't be read, is no gate's.
        const auto gates = connect::gate_names();
        const auto& gate = sends_.back().error_gate;
        if (gate && std::ranges::find(gates, TextView(*gate)) == gates.end())
            sends_.back().error_gate.reset();
    }

    static void take_error_of(LoggedSend& send, const Text& words) {
        const Text whole = Text(handler) + u", ", shortened = u" - " + Text(handler) + u" - ";
        if (words.starts_with(whole)) {
            const auto comma = words.find(u", ", whole.size());
            send.error_gate = words.substr(whole.size(), comma - whole.size());
            if (comma != Text::npos) send.error = words.substr(comma + 2);
        } else if (const auto at = words.rfind(shortened); at != Text::npos) {
            send.error_gate = words.substr(at + shortened.size());
            send.error = words.substr(0, at);
        }
    }

    std::vector<LoggedSend> sends_;
};

} // namespace

std::vector<LoggedSend> sends_in(TextView log) { return LogReader().read(log); }

} // namespace ornavel::workbench
