#include "programs/mass_mailer/people.h"

#include "base/csv.h"
#include "programs/mass_mailer/addresses.h"

#include <algorithm>
#include <unordered_map>

namespace ornavel::mass_mailer {
namespace {

bool holds_address(TextView cell) { return why_no_address(address_in(cell)).empty(); }

bool holds_address_at(const Table& table, std::size_t column) {
    if (table.rows.empty()) return false;
    const auto& cells = table.rows.front().cells;
    return column < cells.size() && holds_address(cells[column]);
}

/// The addresses of a line; a separator in quotes or in "<" and ">" separates nothing.
std::vector<Text> addresses_of(TextView line) {
    std::vector<Text> addresses(1);
    bool quoted = false, in_brackets = false;
    for (const char16_t unit : line) {
        if (unit == '"') quoted = !quoted;
        if (!quoted && (unit == '<' || unit == '>')) in_brackets = unit == '<';
        const bool separates = !quoted && !in_brackets && (unit == ',' || unit == ';' || unit == '\t');
        if (separates)
            addresses.emplace_back();
        else
            addresses.back() += unit;
    }
    std::erase_if(addresses, [](const Text& address) { return trim(address).empty(); });
    return addresses;
}

Table read_addresses(const std::vector<Text>& lines) {
    Table table{.columns = {u"Address"}, .rows = {}};
    for (std::size_t line = 0; line < lines.size(); ++line)
        for (Text& address : addresses_of(lines[line]))
            table.rows.push_back({line + 1, {std::move(address)}});
    return table;
}

TextView why_no_row(const Table& table, const Table::Row& row) {
    if (row.cells.size() > table.columns.size())
        return u"The line has more cells than the first one has names";
    // What follows a NUL would be lost on the way to the mail client.
    if (std::ranges::any_of(row.cells, [](const Text& cell) { return cell.find(u'\0') != Text::npos; }))
        return u"The line has a character that no message can hold";
    return {};
}

} // namespace

Table read_table(std::string_view bytes, const CodePage& ansi) {
    Table table;
    CsvReader reader(bytes, ansi);
    if (!reader.next(table.columns)) throw FileError(u"There is nothing in the list", {});
    for (Text& column : table.columns) column = trim(column);
    if (std::ranges::any_of(table.columns, holds_address))
        throw FileError(u"There is an address where the names of the columns should be", {reader.line(), 1});
    for (std::vector<Text> row; reader.next(row);) table.rows.push_back({reader.line(), std::move(row)});
    return table;
}

Table read_pasted(TextView text) {
    const std::vector<Text> lines = lines_of(text);
    const auto first = std::ranges::find_if(lines, [](const Text& line) { return !trim(line).empty(); });
    if (first != lines.end() && contains(*first, u"@")) return read_addresses(lines);
    return read_table(std::string(utf8_mark) + to_utf8(text), windows_1252());
}

std::size_t likely_address_column(const Table& table) {
    const std::size_t none = table.columns.size();
    std::size_t named = none, filled = none;
    for (std::size_t column = 0; column < none; ++column) {
        const bool is_named = contains(lower_case(table.columns[column]), u"mail");
        const bool is_filled = holds_address_at(table, column);
        if (is_named && is_filled) return column;
        if (is_named && named == none) named = column;
        if (is_filled && filled == none) filled = column;
    }
    if (named != none) return named;
    return filled == none ? 0 : filled;
}

People people_of(const Table& table, std::size_t address_column) {
    People people;
    std::unordered_map<Text, std::size_t> seen;
    for (std::size_t at = 0; at < table.rows.size(); ++at) {
        const Table::Row& row = table.rows[at];
        Text address = address_column < row.cells.size() ? address_in(row.cells[address_column]) : Text();
        Text reason(why_no_row(table, row));
        if (reason.empty()) reason = why_no_address(address);
        if (reason.empty())
            if (const auto [first, is_new] = seen.try_emplace(address_key(address), row.line); !is_new)
                reason = u"The same address as in line " + to_text(static_cast<long long>(first->second));
        if (reason.empty())
            people.people.push_back({std::move(address), at});
        else
            people.rejected.push_back({row.line, std::move(address), std::move(reason)});
    }
    return people;
}

} // namespace ornavel::mass_mailer
