#include "base/csv.h"

#include <gtest/gtest.h>

namespace ornavel {
namespace {

using Rows = std::vector<std::vector<Text>>;

Rows rows_of(std::string_view bytes) {
    CsvReader reader(bytes, windows_1252());
    Rows rows;
    for (std::vector<Text> row; reader.next(row);) rows.push_back(row);
    return rows;
}

Place error_in(std::string_view bytes) {
    try {
        rows_of(bytes);
    } catch (const FileError& error) {
        return error.at();
    }
    return {0, 0};
}

TEST(Csv, QuotedCellsHoldSeparatorsQuotesAndLineBreaks) {
    const Rows expected{{u"name", u"title"}, {u"Marlow, Joanna", u"\"Partner\"\r\nplanting"}, {u"", u""}};
    EXPECT_EQ(rows_of("name,title\r\n\"Marlow, Joanna\",\"\"\"Partner\"\"\r\nplanting\"\r\n,\r\n"), expected);
}

TEST(Csv, TheSeparatorIsTheOneThatTheFirstRowHasMostOf) {
    EXPECT_EQ(rows_of("a;b;\"c,d,e,f\"\n1;2;3"), (Rows{{u"a", u"b", u"c,d,e,f"}, {u"1", u"2", u"3"}}));
    EXPECT_EQ(rows_of("a\tb\n1,5\t2"), (Rows{{u"a", u"b"}, {u"1,5", u"2"}}));
    EXPECT_EQ(rows_of("only\none\n"), (Rows{{u"only"}, {u"one"}}));
}

TEST(Csv, LinesEndInAnyWayAndEmptyOnesAreNoRows) {
    EXPECT_EQ(rows_of("\r\na,b\r1,2\n\n\n3,4"), (Rows{{u"a", u"b"}, {u"1", u"2"}, {u"3", u"4"}}));
    EXPECT_EQ(rows_of("a,b\n1,"), (Rows{{u"a", u"b"}, {u"1", u""}}));
    EXPECT_TRUE(rows_of("").empty());
    EXPECT_TRUE(rows_of("\r\n\r\n").empty());
}

TEST(Csv, EveryEncodingOfATextFileIsUnderstood) {
    const Rows expected{{u"é", u"b"}};
    EXPECT_EQ(rows_of("\xC3\xA9,b"), expected);
    EXPECT_EQ(rows_of("\xEF\xBB\xBF\xC3\xA9,b"), expected);
    EXPECT_EQ(rows_of("\xE9,b"), expected);
    EXPECT_EQ(rows_of(std::string_view("\xFF\xFE\xE9\0,\0b\0", 8)), expected);
    EXPECT_EQ(rows_of(std::string_view("\xFE\xFF\0\xE9\0,\0b", 8)), expected);
}

TEST(Csv, ARowKnowsTheLineInWhichItBegins) {
    for (const std::string_view line_end : {"\r\n", "\n", "\r"}) {
        const std::string bytes = "a\n\"b" + std::string(line_end) + "c\"\nd";
        CsvReader reader(bytes, windows_1252());
        std::vector<std::size_t> lines;
        for (std::vector<Text> row; reader.next(row);) lines.push_back(reader.line());
        EXPECT_EQ(lines, (std::vector<std::size_t>{1, 2, 4}));
    }
}

TEST(Csv, AnErrorHasItsPlace) {
    EXPECT_EQ(error_in("a,b\n1,\"2\n3"), (Place{2, 3}));
    EXPECT_EQ(error_in("a,b\n\"1\n\"x,2"), (Place{3, 2}));
}

TEST(Csv, ACellOfAMillionCharactersIsACell) {
    const std::string cell(1'000'000, 'x');
    EXPECT_EQ(rows_of("a,\"" + cell + "\"")[0][1].size(), cell.size());
}

} // namespace
} // namespace ornavel
