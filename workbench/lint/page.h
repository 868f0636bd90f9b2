#pragma once

#include "base/text.h"

#include <optional>

namespace ornavel::workbench {

struct Attribute {
    Text name; ///< in lower case
    Text value;
    std::size_t value_at; ///< where the value begins in the text
};

struct Tag {
    Text name; ///< in lower case
    bool closing = false;
    std::size_t begin = 0, end = 0;
    std::vector<Attribute> attributes{};

    const Attribute* attribute(TextView name) const;
};

/// A stretch of a page that nobody sees as text.
struct Hidden {
    std::size_t begin, end;
    TextView what; ///< "a comment", "an attribute", "a <style>", "a <script>"
};

/// An HTML text with what a reader of it needs to know: never fails, whatever the text is.
struct Page {
    explicit Page(Text html);

    Text text;
    std::vector<Tag> tags;      ///< in their order, those in comments, styles and scripts left out
    std::vector<Hidden> hidden; ///< in their order
    std::vector<Text> comments;

    /// What hides the position; nothing where it is visible.
    std::optional<TextView> hides(std::size_t position) const;
    const Tag* first(TextView name) const;
};

/// The text without tags, with blanks for what HTML shows as such, trimmed.
Text visible_text(TextView html);

} // namespace ornavel::workbench
