#include "base/errors.h"
#include "base/find.h"
#include "compose/filters.h"
#include "compose/word_list.h"

#include <algorithm>
#include <array>

// Addresses in a plain text become links. An address is a word here: it begins with a prefix, such as "www.",
// and ends in front of the next terminator. By the rule each distinct word, in order of first appearance, is
// replaced by its link wherever it stands: also as a part of a longer word, and in a link made before.
//
// One walk through the whole text for each word would take too long. It isn't needed: no word holds a
// terminator, so what becomes of a stretch between two terminators depends on nothing outside of it. The
// stretches are settled one by one. Nearly all are a single word that no other word is a part of, and its
// link is written at once; the others follow the rule word by word.

namespace ornavel::compose {
namespace {

constexpr TextView terminators = u" \r\t)?,:;!";
constexpr TextView after_word_in_link = u"\"<";

/// What a unit means in a word: its end, or what follows a word in its own link.
enum class Meaning : unsigned char { none, end, stem_end };

constexpr auto meanings = [] {
    std::array<Meaning, 64> table{};
    for (const char16_t unit : terminators) table[unit] = Meaning::end;
    for (const char16_t unit : after_word_in_link) table[unit] = Meaning::stem_end;
    return table;
}();

Meaning meaning_of(char16_t unit) { return unit < meanings.size() ? meanings[unit] : Meaning::none; }

void append_link(Text& text, TextView word) {
    text.append(u"<a href=\"http://").append(word).append(u"\">").append(word).append(u"</a>");
}

class LinkMaker {
public:
    LinkMaker(TextView text, TextView prefix) : text_(text), prefix_(prefix), words_({}), stems_({}) {}

    Text run() {
        find_stretches();
        collect_words();
        return rewrite();
    }

private:
    /// From the first prefix up to a terminator.
    struct Stretch {
        std::size_t begin, end;
        bool single; ///< with no second prefix in it
    };

    void find_stretches() {
        auto at = find_text(text_, prefix_);
        while (at != TextView::npos) {
            const std::size_t begin = at, end = end_of_word(at + prefix_.size());
            at = find_text(text_, prefix_, at + prefix_.size());
            stretches_.push_back({begin, end, at >= end});
            while (at < end) at = find_text(text_, prefix_, at + prefix_.size());
        }
    }

    std::size_t end_of_word(std::size_t at) {
        for (; at < text_.size(); ++at) {
            const Meaning meaning = meaning_of(text_[at]);
            if (meaning == Meaning::end) break;
            has_stems_ = has_stems_ || meaning == Meaning::stem_end;
        }
        return at;
    }

    template <typename Take>
    void each_word(const Stretch& stretch, const Take& take) const {
        const TextView whole = text_.substr(0, stretch.end);
        for (auto at = stretch.begin; at != TextView::npos;) {
            take(whole.substr(at));
            at = stretch.single ? TextView::npos : find_text(whole, prefix_, at + prefix_.size());
        }
    }

    void collect_words() {
        std::vector<TextView> words;
        words.reserve(stretches_.size());
        for (const Stretch& stretch : stretches_)
            each_word(stretch, [&](TextView word) { words.push_back(word); });
        words_ = WordList(words);
        if (!has_stems_) return;
        std::vector<TextView> stems;
        for (std::uint32_t i = 0; i < words_.size(); ++i)
            for (std::size_t at = prefix_.size(); at < words_[i].size(); ++at)
                if (meaning_of(words_[i][at]) == Meaning::stem_end) stems.push_back(words_[i].substr(0, at));
        stems_ = WordList(stems);
    }

    /// Whether the word's link is all that becomes of it: no other word stands in it, nor in `word">word</a>`
    /// once the link is made.
    bool stands_alone(const Stretch& stretch) const {
        const TextView word = text_.substr(stretch.begin, stretch.end - stretch.begin);
        return stretch.single && !words_.is_begun_by_another(word) &&
               (stems_.size() == 0 || stems_.find(word) == WordList::none);
    }

    Text rewrite() const {
        Text result;
        result.reserve(expected_size());
        std::size_t done = 0;
        for (const Stretch& stretch : stretches_) {
            result.append(text_.substr(done, stretch.begin - done));
            done = stretch.end;
            const TextView word = text_.substr(stretch.begin, done - stretch.begin);
            if (stands_alone(stretch))
                append_link(result, word);
            else
                result.append(linked_in_order(Text(word)));
            if (result.size() > largest_text) throw TextTooLarge();
        }
        result.append(text_.substr(done));
        return result;
    }

    std::size_t expected_size() const {
        std::size_t size = text_.size();
        for (const Stretch& stretch : stretches_) size += stretch.end - stretch.begin + 24;
        return std::min(size, largest_text);
    }

    /// By the rule to the letter: word after word, each in the result of the one before.
    Text linked_in_order(Text stretch) const {
        for (auto number = next_word(stretch, 0); number != WordList::none;
             number = next_word(stretch, number + 1)) {
            Text link;
            append_link(link, words_[number]);
            stretch = replace_all(stretch, words_[number], link);
        }
        return stretch;
    }

    std::uint32_t next_word(TextView stretch, std::uint32_t from) const {
        std::uint32_t next = WordList::none;
        for (auto at = find_text(stretch, prefix_); at != TextView::npos && next != from;
             at = find_text(stretch, prefix_, at + 1))
            next = std::min(next, words_.first_beginning(stretch.substr(at), from));
        return next;
    }

    TextView text_, prefix_;
    std::vector<Stretch> stretches_;
    bool has_stems_ = false;
    WordList words_;
    WordList stems_; ///< what stands in a word in front of a unit that follows a word in its link
};

} // namespace

Text with_links(TextView text, TextView prefix) { return LinkMaker(text, prefix).run(); }

} // namespace ornavel::compose
