#pragma once

#include "base/text.h"

#include <span>
#include <vector>

namespace ornavel::mass_mailer {

/// A text with fields: "{{Column}}" stands for what a person's row holds there. Names of columns compare
/// without case.
class Draft {
public:
    /// What the text is: in a page of HTML, values are escaped; in a line, what would begin another line
    /// becomes a blank.
    enum class Kind { line, html };
    Draft() = default; ///< no text
    Draft(TextView text, Kind kind, const std::vector<Text>& columns);

    /// A sentence for each field that can't be filled; without any, filled() is the whole text.
    const std::vector<Text>& problems() const { return problems_; }
    /// The columns that fields stand for, each once.
    const std::vector<std::size_t>& columns() const { return columns_; }

    /// The text for one person. A cell that a row lacks is empty. Throws TextTooLarge.
    Text filled(std::span<const Text> cells) const;

private:
    struct Piece {
        Text literal;
        std::size_t column; ///< whose value follows
    };
    void add_problem(Text problem);
    void add_field(Text literal, TextView name, const std::vector<Text>& names);

    Kind kind_ = Kind::line;
    std::vector<Piece> pieces_;
    Text rest_;
    std::vector<Text> problems_;
    std::vector<std::size_t> columns_;
};

} // namespace ornavel::mass_mailer
