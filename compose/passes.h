#pragma once

#include "base/find.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace ornavel::compose {

/// Every occurrence of a text is replaced, from the first unit on. Both texts outlive the passes made of
/// them.
struct Pass {
    TextView search;
    TextView replacement;
};

/// Ordered replace-all passes over a text, each working on the result of the one before. A pass with an
/// empty search text changes nothing.
class Passes {
public:
    explicit Passes(std::span<const Pass> ordered);

    /// Changes the text as the passes do, one after the other, mostly in one scan of it. Gives back how many
    /// were made: fewer than there are when the next would let the text grow beyond largest_text, and then
    /// the text is as it stood before that one.
    std::size_t apply(Text& text) const;

    /// All of them, or none where one would let the text grow too far. Gives back whether they were made.
    bool apply_all(Text& text) const;

    /// The same by walking the whole text once for each pass.
    std::size_t apply_in_order(Text& text) const;

private:
    friend class OneScan;

    /// A set of kinds of fields, one bit each. Most search texts hold a field, and most fields are not in the
    /// text: a pass whose kind is not there is skipped without a search. The bit follows from four letters of
    /// the field's name, so that two names may share one; then a search is made in vain, and nothing else.
    using FieldKinds = std::uint64_t;
    /// The kind of search texts without a field. It counts as there in every text.
    static constexpr FieldKinds no_field = FieldKinds{1} << 63;

    struct Row {
        TextView search;
        TextView replacement;
        FieldKinds kind;   ///< one bit; none where the search text is empty
        std::size_t other; ///< the next row of another kind: where to go on when this kind is not there
    };

    /// What passes did to a text: how many units they never touched at its left and at its right end, and how
    /// long it was at its longest. It tells whether what stands beside the text could take part in a match.
    struct Trace {
        std::size_t left, right, longest;
    };

    static FieldKinds kind_at_front(TextView text);
    static FieldKinds kind_of(TextView search);
    FieldKinds kinds_in(TextView text) const;

    void add_pair(TextView search, FieldKinds kind);
    std::size_t make(Text& text, Text& spare, Trace& trace) const;
    static bool replace(Text& text, Text& spare, const Row& row, std::size_t first, Trace& trace);

    std::vector<Row> rows_;
    std::vector<TextView> without_field_; ///< the search texts that are known by no field
    std::vector<Pair> pairs_;             ///< what every search text, or the field in it, begins with
    /// For each of the first 256 units, whether it occurs in a search text. One that doesn't is a barrier: no
    /// match holds it, so that none reaches from one side of it to the other. The units above have no place
    /// in the table and count as no barriers; a region is then larger than it need be, and no less right.
    std::array<bool, 256> living_{};
    FieldKinds kinds_ = 0;
    std::size_t longest_ = 0;
};

} // namespace ornavel::compose
