#include "workbench/people.h"

#include "base/csv.h"
#include "base/ldif.h"
#include "workbench/places.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

using Take = std::function<void(const Person&)>;

void read_table(std::string_view bytes, const CodePage& ansi, const Take& take) {
    CsvReader reader(bytes, ansi);
    std::vector<Text> names, row;
    if (!reader.next(names)) throw FileError(u"There is no row with names", {});
    Person person;
    while (reader.next(row)) {
        if (row.size() > names.size())
            throw FileError(u"This row has more cells than there are names", {reader.line(), 1});
        person.line = reader.line();
        person.values.resize(row.size());
        for (std::size_t at = 0; at < row.size(); ++at) {
            person.values[at].first = names[at];
            person.values[at].second = std::move(row[at]);
        }
        take(person);
    }
}

void read_directory(std::string_view bytes, const Take& take) {
    LdifReader reader(bytes);
    for (LdifEntry entry; reader.next(entry);) take({entry.line, std::move(entry.attributes)});
}

} // namespace

const Text* Person::find(TextView name) const {
    const auto value =
        std::ranges::find_if(values, [&](const auto& one) { return same_name(one.first, name); });
    return value == values.end() ? nullptr : &value->second;
}

void read_people(const Files& files, TextView path, const Take& take) {
    const std::string bytes = files.read(path);
    try {
        if (lower_case(path).ends_with(u".ldif"))
            read_directory(bytes, take);
        else
            read_table(bytes, files.ansi(), take);
    } catch (const FileError& error) {
        throw Failure(at(path, error.at(), error.description()));
    }
}

} // namespace ornavel::workbench
