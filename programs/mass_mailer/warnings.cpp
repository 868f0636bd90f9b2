#include "programs/mass_mailer/warnings.h"

#include <algorithm>
#include <set>

namespace ornavel::mass_mailer {

using namespace settings;

std::vector<Text> warnings(const Store& settings) {
    std::vector<Text> found;
    if (!is_on(settings, admin::UseRedemption))
        found.push_back(u"Some versions of the mail client ask about each message before it leaves.");
    if (is_on(settings, admin::UseExclaimer))
        found.push_back(u"\"" + read(settings, admin::ExclaimerRule) +
                        u"\" is added to the subject of each message.");
    if (is_ticked(settings, admin::SkipInternal))
        found.push_back(u"Messages to colleagues get the short internal signature.");
    if (is_on(settings, user::SendAsIs))
        found.push_back(u"The first message uses up \"send as is\": your next own message is dressed.");
    if (is_on(settings, admin::WipeoutPersonalStationery))
        found.push_back(u"While the mail client has personal stationery, messages are refused.");
    return found;
}

std::vector<Text> empty_fields(const Table& table, const People& people, const Draft& subject,
                               const Draft& page) {
    std::set<std::size_t> columns(subject.columns().begin(), subject.columns().end());
    columns.insert(page.columns().begin(), page.columns().end());
    std::vector<Text> found;
    for (const std::size_t column : columns) {
        const auto lacks = [&](const Person& person) {
            const auto& cells = table.rows[person.row].cells;
            return column >= cells.size() || trim(cells[column]).empty();
        };
        const auto count = std::ranges::count_if(people.people, lacks);
        if (count == 0) continue;
        found.push_back(u"\"" + table.columns[column] + u"\" is empty for " + to_text(count) +
                        (count == 1 ? u" person." : u" people."));
    }
    return found;
}

} // namespace ornavel::mass_mailer
