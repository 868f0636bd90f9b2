#include "base/errors.h"
#include "base/find.h"
#include "compose/filters.h"

// Two filters in one pass. By the rule, the first goes through the whole text, and then the second does. The
// first replaces each image whose tag holds "id=rid" or "alt=" by "<xIMG>", and marks every other one: its
// "<img" becomes "<xxxIMG". It ends at a tag that never closes. The second turns every "<xxximg", whoever
// wrote it, into "<IMG ". Nothing that one of them writes joins the text around it to something that either
// looks for. So one pass can settle each place for good as it comes to it.

namespace ornavel::compose {
namespace {

constexpr TextView image = u"<img";
constexpr TextView marked_image = u"<xxximg";
constexpr Pair beginnings[] = {{u'<', u'i', 0, either_case}, {u'<', u'x', 0, either_case}};

/// The next occurrence of a part, kept until it is passed, so that many questions cost one walk.
class Ahead {
public:
    Ahead(TextView text, TextView lower_part) : text_(text), part_(lower_part), at_(search(0)) {}

    std::size_t from(std::size_t position) {
        if (at_ < position) at_ = search(position);
        return at_;
    }

private:
    std::size_t search(std::size_t position) const { return find_in_either_case(text_, part_, position); }

    TextView text_, part_;
    std::size_t at_;
};

class ImagePass {
public:
    explicit ImagePass(TextView text)
        : text_(text), closing_(text, u">"), id_(text, u"id=rid"), description_(text, u"alt=") {}

    Text run() {
        result_.reserve(text_.size() + text_.size() / 64);
        for (auto at = find_pair(text_, 0, beginnings); at != TextView::npos;
             at = find_pair(text_, std::max(done_, at + 1), beginnings))
            settle(at);
        result_.append(text_.substr(done_));
        if (result_.size() > largest_text) throw TextTooLarge();
        return std::move(result_);
    }

private:
    void settle(std::size_t at) {
        const TextView rest = text_.substr(at);
        if (begins_in_either_case(rest, marked_image)) {
            replace(at, at + marked_image.size(), u"<IMG ");
        } else if (!ended_ && begins_in_either_case(rest, image)) {
            settle_image(at, at + image.size());
        }
    }

    void settle_image(std::size_t at, std::size_t inside) {
        const auto close = closing_.from(inside);
        ended_ = close == TextView::npos;
        if (ended_) return;
        if (id_.from(inside) < close || description_.from(inside) < close)
            replace(at, close + 1, u"<xIMG>");
        else
            replace(at, inside, u"<IMG ");
    }

    void replace(std::size_t begin, std::size_t end, TextView by) {
        result_.append(text_.substr(done_, begin - done_)).append(by);
        done_ = end;
    }

    TextView text_;
    Ahead closing_, id_, description_;
    Text result_;
    std::size_t done_ = 0;
    bool ended_ = false;
};

} // namespace

Text without_images(TextView text) { return ImagePass(text).run(); }

void break_image_tags(Text& text) {
    constexpr TextView letters = u"img";
    for (auto at = find_in_either_case(text, letters); at != Text::npos;
         at = find_in_either_case(text, letters, at + letters.size()))
        text.replace(at, letters.size(), u"xMG");
}

} // namespace ornavel::compose
