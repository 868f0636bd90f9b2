#include "base/errors.h"
#include "compose/filters.h"
#include "fuzz/input.h"
#include "tests/compose/plain_filters.h"

namespace {

using namespace ornavel;

constexpr TextView pieces[] = {u"www.", u"www.a",   u"www.ab", u"ww",  u"w.", u"a",
                               u"b",    u" ",       u"\r\n",   u"\r",  u"\n", u"\t",
                               u"\"",   u"www.a\"", u"</a>",   u"\">", u":",  u"<a href=\"http://"};

/// Words inside words double the text each time: too many are another matter than exactness.
bool is_small(const Text& text) {
    std::size_t words = 0;
    for (auto at = text.find(u"www."); at != Text::npos; at = text.find(u"www.", at + 1)) ++words;
    return words <= 6;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const Text text = fuzz::Input(bytes, size).text(pieces);
    if (is_small(text))
        fuzz::require(compose::with_links(text, u"www.") == compose::plain_links(text, u"www."));
    return 0;
}
