#include "compose/insertions.h"

#include "compose/dates.h"

namespace ornavel::compose {
namespace {

using namespace settings;

host::Appointments appointments_of(const host::Application& application, const LocalTime& day) {
    const host::Appointments all = application.mapi().default_calendar().items();
    all.sort(u"[Start]");
    all.include_recurrences();
    const Text today = filter_date(day);
    return all.restrict(u"[Start] >= '" + today + u"' and [Start] < '" + today + u" 11:59 pm'");
}

/// Both comparisons must hold. The one of texts puts "01:00 PM" in front of "11:00 AM". It stays, so that one
/// version of the add-in names the same appointment as another that a colleague still runs.
bool is_later(const LocalTime& start, const LocalTime& now) {
    return start > now && sortable_moment(start) > sortable_moment(now);
}

constexpr long long first_quote = 15;

/// The rest of the first line that begins with the number, after one separator.
Text quote_numbered(std::span<const Text> lines, long long number) {
    const Text digits = to_text(number);
    for (const Text& line : lines)
        if (line.starts_with(digits))
            return line.size() > digits.size() ? line.substr(digits.size() + 1) : Text();
    return {};
}

/// The quote whose turn it is; moves on to the next one.
Text take_next_quote(Store& settings, const Files& files) {
    const long long number = std::max<long long>(read_number(settings, system::LastTipNumber), first_quote);
    const auto lines = lines_of(read_text(files, read(settings, admin::TipsFileLocation)));
    const bool wraps = number > static_cast<long long>(lines.size()) - 1;
    // A wrap-around carries no quote and goes on with 16, not 15. The number is kept in the store, where every
    // version that the user has run counts on alike.
    save(settings, system::LastTipNumber, to_text(wraps ? first_quote + 1 : number + 1));
    return wraps ? Text() : quote_numbered(lines, number);
}

} // namespace

Text next_appointment(const host::Application& application, const Clock& clock, ErrorSink& errors) noexcept {
    Text answer;
    trap(errors, next_appointment_trap, [&] {
        const LocalTime now = clock.now();
        const auto appointments = appointments_of(application, now);
        for (auto appointment = appointments.first(); appointment; appointment = appointments.next()) {
            const LocalTime start = appointment.start();
            if (!is_later(start, now)) continue;
            answer = appointment.subject() + u" at " + short_clock_time(start);
            return;
        }
    });
    return answer;
}

void GetNextQuote(Store& settings, const Files& files, ErrorSink& errors) noexcept {
    trap(errors, next_quote_trap,
         [&] { save(settings, user::SendQuoteString, take_next_quote(settings, files)); });
}

Text next_tip(Store& settings, const Files& files, ErrorSink& errors) noexcept {
    Text tip;
    trap(errors, next_tip_trap, [&] {
        if (files.file_exists(read(settings, admin::TipsFileLocation)))
            tip = take_next_quote(settings, files);
    });
    return tip;
}

Text boilerplate_text(const Store& settings, const Files& files, TextView name, ErrorSink& errors) noexcept {
    Text text;
    if (name.empty() || name == u"None") return text;
    trap(errors, boilerplate_trap, [&] {
        // Windows takes the forward slash as well. An error's description has it in its path, and a list of
        // errors to ignore names descriptions as they are logged.
        const Text path = read(settings, admin::HTMFilesPath) + u"/" + Text(name);
        text = u"<BR>" + read_lines(files, path, u"<BR>") + u"<BR>";
    });
    return text;
}

Text template_base_name(TextView file_name) {
    const auto end = file_name.find(u"_template");
    if (end == TextView::npos) throw Failure(u"Invalid procedure call or argument");
    return Text(file_name.substr(0, end));
}

} // namespace ornavel::compose
