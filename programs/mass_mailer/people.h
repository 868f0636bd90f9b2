#pragma once

#include "base/encoding.h"
#include "base/file_error.h"

#include <vector>

namespace ornavel::mass_mailer {

/// A list as it was given: the names of its columns, and the cells of each row with the line they stand on.
struct Table {
    struct Row {
        std::size_t line = 0;
        std::vector<Text> cells;
    };
    std::vector<Text> columns;
    std::vector<Row> rows;
};

/// Reads separated values with the names of the columns in the first line. Throws FileError where they can't
/// be understood, and where an address stands in the place of the names: it would be forgotten.
Table read_table(std::string_view bytes, const CodePage& ansi);

/// Reads what somebody pasted: addresses, one or several a line, or a table when no address stands in its
/// first line. Throws as read_table does.
Table read_pasted(TextView text);

/// The column that most likely holds the addresses; 0 for a table without columns.
std::size_t likely_address_column(const Table& table);

/// A row whose address can be sent to.
struct Person {
    Text address;
    std::size_t row = 0; ///< of the table, from 0
};

/// A row that nothing is sent to, and why.
struct Rejected {
    std::size_t line = 0;
    Text address;
    Text reason;
};

/// Everybody on a list: each row is in one of the two.
struct People {
    std::vector<Person> people;
    std::vector<Rejected> rejected;
};

/// Sorts the rows into those to send to, in their order, and those that no message can reach or has reached
/// by an earlier line.
People people_of(const Table& table, std::size_t address_column);

} // namespace ornavel::mass_mailer
