#pragma once

#include "base/errors.h"
#include "compose/passes.h"
#include "settings/store.h"

#include <deque>

namespace ornavel::compose {

struct MergeBlock;

/// The passes of a merge with the values of the settings as they are now.
class Merge {
public:
    /// The merge of a composed body: user codes, signature fields, converted breaks, background colour.
    static Merge of_body(const settings::Store& settings);
    /// The merge of one of the mail client's own signatures.
    static Merge of_signature_file(const settings::Store& settings);

    Merge(Merge&&) = default;

    /// Changes the text. A pass that would let it grow beyond largest_text is not made, and the rest of its
    /// group is left out; the text keeps what was replaced so far. Gives back how many groups ended so.
    std::size_t apply(Text& text) const;

    /// The passes in their order; for tests and measurements.
    std::span<const Pass> passes() const { return passes_; }

private:
    explicit Merge(const settings::Store& settings) : settings_(settings) {}
    void add_group(std::span<const MergeBlock> blocks);
    TextView keep(Text text);

    const settings::Store& settings_;
    std::deque<Text> texts_; ///< what the passes look at
    std::vector<Pass> passes_;
    std::vector<std::size_t> group_ends_;
};

inline constexpr TrapName signature_file_trap{u"merge_signature_file", u"Merge_Err"};

/// Merges one signature text. A failure is written to the error log.
void merge_signature_file(Text& text, const Merge& merge, ErrorSink& errors) noexcept;

} // namespace ornavel::compose
