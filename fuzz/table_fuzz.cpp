#include "base/csv.h"
#include "fuzz/input.h"

namespace {

using namespace ornavel;

/// The rows as separated values again, each cell in quotes.
std::string written(const std::vector<std::vector<Text>>& rows, char separator) {
    std::string bytes = "\xEF\xBB\xBF";
    for (const auto& row : rows) {
        for (std::size_t at = 0; at < row.size(); ++at) {
            if (at > 0) bytes += separator;
            bytes += '"' + to_utf8(replace_all(row[at], u"\"", u"\"\"")) + '"';
        }
        bytes += "\r\n";
    }
    return bytes;
}

bool is_well_formed(const std::vector<std::vector<Text>>& rows) {
    for (const auto& row : rows)
        for (const Text& cell : row)
            if (from_utf8(to_utf8(cell)) != cell) return false;
    return true;
}

} // namespace

// What is read, written in quotes and read again is the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(bytes), size);
    std::vector<std::vector<Text>> rows, again;
    CsvReader reader(input, windows_1252());
    try {
        for (std::vector<Text> row; reader.next(row);) rows.push_back(row);
    } catch (const FileError&) {
        return 0;
    }
    // The first row alone says what separates: of one cell it says nothing.
    if (rows.empty() || rows.front().size() < 2 || !is_well_formed(rows)) return 0;
    const std::string copy = written(rows, reader.separator());
    CsvReader second(copy, windows_1252());
    for (std::vector<Text> row; second.next(row);) again.push_back(row);
    fuzz::require(rows == again);
    return 0;
}
