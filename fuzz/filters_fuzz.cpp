#include "compose/filters.h"
#include "fuzz/input.h"
#include "tests/compose/plain_filters.h"

namespace {

using namespace ornavel;

constexpr TextView pieces[] = {u"<img",   u"<IMG", u"<im",     u"g",        u">",       u"alt=",
                               u"ALT",    u"=",    u"id=rid",  u"ID=R",     u"id",      u"<xxximg",
                               u"<xxx",   u"IMG",  u" ",       u"\r\n",     u"\t",      u"<body",
                               u"<BODY>", u"<",    u"<style>", u"</style>", u"</Style>"};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const Text text = fuzz::Input(bytes, size).text(pieces);
    Text bared = text, styled = text, broken = text;
    compose::bare_body_tag(bared);
    fuzz::require(bared == compose::plain_body_tag(text));
    bool found = false;
    const Text emptied = compose::plain_style_block(text, found);
    fuzz::require(compose::empty_style_block(styled).has_value() == found && styled == emptied);
    fuzz::require(compose::without_images(text) == compose::plain_images(text));
    compose::break_image_tags(broken);
    fuzz::require(broken == compose::plain_image_letters(text));
    fuzz::require(compose::lines_as_divisions(text) == compose::plain_divisions(text));
    ornavel::Text tabbed = text;
    compose::replace_tabs(tabbed);
    fuzz::require(tabbed == compose::plain_tabs(text));
    return 0;
}
