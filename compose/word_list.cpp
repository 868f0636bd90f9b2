#include "compose/word_list.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace ornavel::compose {
namespace {

constexpr std::size_t shortest_word = 4;
constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15U;

std::uint64_t four_units(const char16_t* units) {
    std::uint64_t four;
    std::memcpy(&four, units, sizeof four);
    return four;
}

/// The last step takes the last four units, whether or not the one before took some of them.
std::uint32_t hash_of(TextView word) {
    std::uint64_t hash = word.size();
    for (std::size_t at = 0; at + shortest_word < word.size(); at += shortest_word)
        hash = std::rotl((hash ^ four_units(word.data() + at)) * multiplier, 29);
    hash = (hash ^ four_units(word.data() + word.size() - shortest_word)) * multiplier;
    return static_cast<std::uint32_t>(hash >> 32);
}

} // namespace

WordList::WordList(std::span<const TextView> appearing) : slots_(std::bit_ceil(2 * appearing.size() + 1)) {
    words_.reserve(appearing.size());
    const std::size_t bits = std::bit_ceil(std::max<std::size_t>(16 * appearing.size(), 64));
    endings_.resize(bits / 64);
    ending_shift_ = 64 - std::countr_zero(bits);

    // Slots of a long list are far apart in memory: each is asked for a few words before it is needed.
    constexpr std::size_t ahead = 16;
    std::array<std::uint32_t, ahead> hashes{};
    for (std::size_t i = 0; i < appearing.size() + ahead; ++i) {
        if (i >= ahead) add(appearing[i - ahead], hashes[i % ahead]);
        if (i >= appearing.size()) continue;
        hashes[i % ahead] = hash_of(appearing[i]);
        __builtin_prefetch(&slots_[hashes[i % ahead] & (slots_.size() - 1)]);
    }
}

std::size_t WordList::slot_of(TextView word, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].number != none && (slots_[at].hash != hash || words_[slots_[at].number] != word))
        at = (at + 1) & mask;
    return at;
}

std::size_t WordList::ending_bit(TextView word) const {
    const std::uint64_t ending = four_units(word.data() + word.size() - shortest_word);
    return static_cast<std::size_t>(((ending ^ std::rotl(word.size() * multiplier, 17)) * multiplier) >>
                                    ending_shift_);
}

bool WordList::may_be_word(TextView word) const {
    const std::size_t bit = ending_bit(word);
    return (endings_[bit / 64] >> (bit % 64) & 1) != 0;
}

void WordList::add(TextView word, std::uint32_t hash) {
    Slot& slot = slots_[slot_of(word, hash)];
    if (slot.number != none) return;
    slot = {hash, static_cast<std::uint32_t>(words_.size())};
    words_.push_back(word);
    const std::size_t bit = ending_bit(word);
    endings_[bit / 64] |= std::uint64_t{1} << (bit % 64);
    const auto length = std::ranges::lower_bound(lengths_, word.size());
    if (length == lengths_.end() || *length != word.size()) lengths_.insert(length, word.size());
}

std::uint32_t WordList::find(TextView word) const {
    return may_be_word(word) ? slots_[slot_of(word, hash_of(word))].number : none;
}

std::uint32_t WordList::first_beginning(TextView text, std::uint32_t from) const {
    std::uint32_t first = none;
    for (const std::size_t length : lengths_) {
        if (length > text.size()) break;
        const std::uint32_t number = find(text.substr(0, length));
        if (number >= from) first = std::min(first, number);
    }
    return first;
}

bool WordList::is_begun_by_another(TextView word) const {
    for (const std::size_t length : lengths_) {
        if (length >= word.size()) return false;
        if (find(word.substr(0, length)) != none) return true;
    }
    return false;
}

} // namespace ornavel::compose
