#include "rehearsal/xml.h"

#include "base/errors.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

struct Entity {
    TextView name;
    char16_t unit;
};
constexpr Entity entities[] = {
    {u"amp", u'&'}, {u"lt", u'<'}, {u"gt", u'>'}, {u"quot", u'"'}, {u"apos", u'\''}};

bool is_blank(char16_t unit) { return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n'; }
bool begins_a_name(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'_';
}
bool continues_a_name(char16_t unit) {
    return begins_a_name(unit) || (unit >= u'0' && unit <= u'9') || unit == u'-' || unit == u'.';
}

class Parser {
public:
    explicit Parser(TextView text) : text_(text) {}

    XmlElement document() {
        skip_blanks();
        XmlElement root = element();
        skip_blanks();
        if (place_ != text_.size()) refuse(u"something behind the end");
        return root;
    }

private:
    [[noreturn]] void refuse(TextView reason) const {
        throw Failure(u"markup, place " + to_text(static_cast<long long>(place_ + 1)) + u": " + Text(reason));
    }
    char16_t next() const {
        if (place_ == text_.size()) refuse(u"it ends too early");
        return text_[place_];
    }
    bool take(TextView expected) {
        const bool is_there = text_.substr(place_, expected.size()) == expected;
        if (is_there) place_ += expected.size();
        return is_there;
    }
    void must_take(TextView expected) {
        if (!take(expected)) refuse(u"expected " + Text(expected));
    }
    bool skip_blanks() {
        const std::size_t before = place_;
        while (place_ < text_.size() && is_blank(text_[place_])) ++place_;
        return place_ > before;
    }
    Text name() {
        if (!begins_a_name(next())) refuse(u"expected a name");
        const std::size_t begin = place_;
        while (continues_a_name(next())) ++place_;
        return Text(text_.substr(begin, place_ - begin));
    }
    char16_t entity() {
        for (const Entity& entity : entities)
            if (take(u"&" + Text(entity.name) + u";")) return entity.unit;
        refuse(u"an unknown entity");
    }
    Text value() {
        const char16_t quote = next();
        if (quote != u'"' && quote != u'\'') refuse(u"expected a value in quotes");
        ++place_;
        Text value;
        while (next() != quote) {
            if (next() == u'<') refuse(u"an attribute holds <");
            value += next() == u'&' ? entity() : text_[place_++];
        }
        ++place_;
        return value;
    }
    void attribute(XmlElement& element) {
        Text own = name();
        skip_blanks();
        must_take(u"=");
        skip_blanks();
        if (element.find(own)) refuse(u"the attribute " + own + u" twice");
        element.attributes.emplace_back(std::move(own), value());
    }
    void children(XmlElement& element) {
        for (skip_blanks(); !take(u"</"); skip_blanks()) element.children.push_back(this->element());
        if (name() != element.name) refuse(u"another element ends than " + element.name);
        skip_blanks();
        must_take(u">");
    }
    XmlElement element() {
        must_take(u"<");
        XmlElement element{.name = name(), .attributes = {}, .children = {}};
        while (skip_blanks() && next() != u'/' && next() != u'>') attribute(element);
        if (take(u"/>")) return element;
        must_take(u">");
        children(element);
        return element;
    }

    TextView text_;
    std::size_t place_ = 0;
};

} // namespace

const Text* XmlElement::find(TextView attribute) const {
    const auto found = std::ranges::find(attributes, attribute, &std::pair<Text, Text>::first);
    return found == attributes.end() ? nullptr : &found->second;
}

XmlElement parse_xml(TextView text) { return Parser(text).document(); }

} // namespace ornavel::rehearsal
