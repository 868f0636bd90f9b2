#pragma once

#include "base/encoding.h"
#include "base/file_error.h"

#include <vector>

namespace ornavel {

/// Reads separated values (RFC 4180) row by row, so that memory holds the file and one row. The separator is
/// the comma, semicolon or tab that the first row has most of; a quoted cell may hold separators, line breaks
/// and doubled quotes. Empty lines are no rows. The encoding is found as for every text file.
class CsvReader {
public:
    /// The bytes outlive the reader.
    CsvReader(std::string_view bytes, const CodePage& ansi);

    /// The next row, in the memory of the one before; false behind the last. Throws FileError, with a column
    /// in bytes, for a quoted cell that never ends and for one that goes on behind its closing quote.
    bool next(std::vector<Text>& row);

    /// Where the row that was read last begins.
    std::size_t line() const { return row_line_; }
    char separator() const { return separator_; }

private:
    Text cell();
    std::string quoted_cell();
    Text decoded(std::string_view cell) const;
    bool at_line_end() const;
    void skip_line_end();
    Place here() const { return {line_, at_ - line_start_ + 1}; }

    std::string transcoded_; ///< of a file in UTF-16
    std::string_view bytes_;
    const CodePage& ansi_;
    bool utf8_ = false;
    char separator_ = ',';
    std::size_t at_ = 0, line_ = 1, line_start_ = 0, row_line_ = 1;
};

} // namespace ornavel
