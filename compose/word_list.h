#pragma once

#include "base/text.h"

#include <cstdint>
#include <span>
#include <vector>

namespace ornavel::compose {

/// Distinct words, numbered in order of first appearance. A word has at least four units, and the text that
/// it stands in outlives the list.
class WordList {
public:
    /// The words as they appear, with repetitions.
    explicit WordList(std::span<const TextView> appearing);

    static constexpr std::uint32_t none = 0xFFFFFFFF;

    /// A word's number, or none.
    std::uint32_t find(TextView word) const;
    /// The least number, from the given one on, of a word that the text begins with, or none.
    std::uint32_t first_beginning(TextView text, std::uint32_t from) const;
    /// Whether a shorter word of the list begins this one.
    bool is_begun_by_another(TextView word) const;

    std::size_t size() const { return words_.size(); }
    TextView operator[](std::uint32_t number) const { return words_[number]; }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t number = none;
    };

    void add(TextView word, std::uint32_t hash);
    std::size_t slot_of(TextView word, std::uint32_t hash) const;
    std::size_t ending_bit(TextView word) const;
    bool may_be_word(TextView word) const;

    std::vector<TextView> words_;
    std::vector<Slot> slots_;            ///< a power of two of them, at least half empty
    std::vector<std::uint64_t> endings_; ///< a bit for what a word is long and ends in
    std::vector<std::size_t> lengths_;   ///< that words have, ascending
    int ending_shift_;
};

} // namespace ornavel::compose
