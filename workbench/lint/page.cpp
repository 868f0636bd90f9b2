#include "workbench/lint/page.h"

#include "base/find.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

bool is_space(char16_t unit) { return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n'; }
bool is_name(char16_t unit) { return !is_space(unit) && unit != u'>' && unit != u'=' && unit != u'/'; }

std::size_t end_or_all(std::size_t found, TextView text) { return found == Text::npos ? text.size() : found; }

class PageReader {
public:
    PageReader(TextView text, Page& page) : text_(text), page_(page) {}

    void run() {
        for (auto at = text_.find(u'<'); at != Text::npos; at = text_.find(u'<', at_)) {
            at_ = at;
            if (text_.substr(at).starts_with(u"<!--"))
                read_comment();
            else
                read_tag();
        }
    }

private:
    void read_comment() {
        const std::size_t begin = at_;
        const auto close = text_.find(u"-->", begin + 4);
        at_ = close == Text::npos ? text_.size() : close + 3;
        page_.hidden.push_back({begin, at_, u"a comment"});
        page_.comments.emplace_back(text_.substr(begin, at_ - begin));
    }

    void read_tag() {
        Tag tag;
        tag.begin = at_++;
        tag.closing = at_ < text_.size() && text_[at_] == u'/';
        if (tag.closing) ++at_;
        tag.name = lower_case(word());
        if (tag.name.empty()) return; // a "<" alone
        while (read_attribute(tag)) {
        }
        tag.end = at_;
        page_.hidden.push_back({tag.begin, tag.end, u"an attribute"});
        const bool raw = !tag.closing && (tag.name == u"style" || tag.name == u"script");
        page_.tags.push_back(std::move(tag));
        if (raw) skip_raw(page_.tags.back());
    }

    /// Whether there was one; the tag's end is passed.
    bool read_attribute(Tag& tag) {
        skip([](char16_t unit) { return is_space(unit) || unit == u'/'; });
        if (at_ == text_.size()) return false;
        if (text_[at_] == u'>') return ++at_, false;
        Attribute attribute{lower_case(word()), {}, at_};
        skip(is_space);
        if (at_ < text_.size() && text_[at_] == u'=') {
            ++at_;
            skip(is_space);
            read_value(attribute);
        }
        tag.attributes.push_back(std::move(attribute));
        return true;
    }

    void read_value(Attribute& attribute) {
        const char16_t quote = at_ < text_.size() ? text_[at_] : u'\0';
        if (quote == u'"' || quote == u'\'') {
            attribute.value_at = ++at_;
            const auto close = end_or_all(text_.find(quote, at_), text_);
            attribute.value = text_.substr(at_, close - at_);
            at_ = std::min(close + 1, text_.size());
            return;
        }
        attribute.value_at = at_;
        skip([](char16_t unit) { return !is_space(unit) && unit != u'>'; });
        attribute.value = text_.substr(attribute.value_at, at_ - attribute.value_at);
    }

    void skip_raw(const Tag& tag) {
        const auto close = end_or_all(find_in_either_case(text_, u"</" + tag.name, at_), text_);
        page_.hidden.push_back({at_, close, tag.name == u"style" ? u"a <style>" : u"a <script>"});
        at_ = close;
    }

    TextView word() {
        const std::size_t begin = at_;
        if (at_ < text_.size() && text_[at_] == u'=') ++at_; // a stray one is a word of its own
        skip(is_name);
        return text_.substr(begin, at_ - begin);
    }

    template <class Belongs>
    void skip(Belongs belongs) {
        while (at_ < text_.size() && belongs(text_[at_])) ++at_;
    }

    TextView text_;
    Page& page_;
    std::size_t at_ = 0;
};

} // namespace

const Attribute* Tag::attribute(TextView wanted) const {
    const auto found = std::ranges::find(attributes, wanted, &Attribute::name);
    return found == attributes.end() ? nullptr : &*found;
}

Page::Page(Text html) : text(std::move(html)) { PageReader(text, *this).run(); }

std::optional<TextView> Page::hides(std::size_t position) const {
    const auto behind = std::ranges::upper_bound(hidden, position, {}, &Hidden::begin);
    if (behind == hidden.begin()) return {};
    const Hidden& last = *std::prev(behind);
    return position < last.end ? std::optional(last.what) : std::nullopt;
}

const Tag* Page::first(TextView name) const {
    const auto found =
        std::ranges::find_if(tags, [&](const Tag& tag) { return tag.name == name && !tag.closing; });
    return found == tags.end() ? nullptr : &*found;
}

Text visible_text(TextView html) {
    const Page page{Text(html)};
    Text text;
    std::size_t at = 0;
    for (const Hidden& part : page.hidden) {
        text.append(html.substr(at, part.begin - at));
        at = part.end;
    }
    text = replace_all(text.append(html.substr(at)), u"&nbsp;", u" ");
    for (char16_t& unit : text)
        if (is_space(unit) || unit == u'\u00A0') unit = u' ';
    return trim(text);
}

} // namespace ornavel::workbench
