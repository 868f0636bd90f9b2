#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace ornavel::mass_mailer {

/// What came of everybody: people who have more than one message, or none though nobody would notice, and
/// people who are listed as unknown.
struct Tally {
    int with_two = 0, forgotten = 0, unknown_with_one = 0, unknown_without = 0;

    int unknown() const { return unknown_with_one + unknown_without; }
    bool keeps_the_promise(int ends) const { return with_two == 0 && forgotten == 0 && unknown() <= ends; }
};

/// The table that a reader of the test's log sees: a row for each kind of stop.
class Stops {
public:
    void add(const std::string& where, int ends, const Tally& tally) {
        Row& row = row_of(where);
        row.ends += ends;
        row.sum.with_two += tally.with_two;
        row.sum.forgotten += tally.forgotten;
        row.sum.unknown_with_one += tally.unknown_with_one;
        row.sum.unknown_without += tally.unknown_without;
        row.most_unknown = std::max(row.most_unknown, tally.unknown());
    }
    void print(int people) const {
        std::printf("%d people                          two       for-  unknown,  unknown,  unknown\n",
                    people);
        std::printf("the program ends         times  messages  gotten  has it    has none  at most\n");
        for (const auto& [where, ends, sum, most_unknown] : rows_)
            std::printf("%-22s %7d %9d %7d %9d %9d %8d\n", where.c_str(), ends, sum.with_two, sum.forgotten,
                        sum.unknown_with_one, sum.unknown_without, most_unknown);
    }

private:
    struct Row {
        std::string where;
        int ends = 0;
        Tally sum{};
        int most_unknown = 0; ///< in one run
    };
    Row& row_of(const std::string& where) {
        const auto found = std::ranges::find(rows_, where, &Row::where);
        return found == rows_.end() ? rows_.emplace_back(Row{where}) : *found;
    }
    std::vector<Row> rows_;
};

} // namespace ornavel::mass_mailer
