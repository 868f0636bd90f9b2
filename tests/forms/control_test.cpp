#include "forms/control.h"

#include <gtest/gtest.h>

namespace ornavel::forms {
namespace {

Text read(ControlKind kind, TextView caption) {
    return readable_caption({.kind = kind, .caption = Text(caption)});
}

TEST(Captions, AreReadWithoutTheMarkOfTheirAccessKey) {
    EXPECT_EQ(read(ControlKind::command_button, u"&Send"), u"Send");
    EXPECT_EQ(read(ControlKind::label, u"Marlow && Hale"), u"Marlow & Hale");
    EXPECT_EQ(read(ControlKind::check_box, u"&&&a&"), u"&a");
    EXPECT_EQ(read(ControlKind::form, u"Marlow && &Hale"), u"Marlow && &Hale");
}

TEST(Captions, AreHadByFormsAndMenusToo) {
    for (const ControlKind kind : {ControlKind::form, ControlKind::menu, ControlKind::label})
        EXPECT_TRUE(has_caption(kind));
    for (const ControlKind kind : {ControlKind::image, ControlKind::text_box, ControlKind::list_view})
        EXPECT_FALSE(has_caption(kind));
}

TEST(Captions, HaveTheFirstSuchLetterAsTheirAccessKey) {
    EXPECT_EQ(with_access_key(u"Yes. Use Yeast.", u'Y'), u"&Yes. Use Yeast.");
    EXPECT_EQ(with_access_key(u"Marlow & Hale", u'H'), u"Marlow && &Hale");
    EXPECT_EQ(with_access_key(u"OK", u'N'), u"OK");
}

std::optional<char16_t> key(ControlKind kind, TextView caption) {
    return access_key_of({.kind = kind, .caption = Text(caption)});
}

TEST(AccessKeys, AreTheLettersBehindTheMark) {
    EXPECT_EQ(key(ControlKind::command_button, u"&Send"), u's');
    EXPECT_EQ(key(ControlKind::label, u"Marlow && &Hale"), u'h');
    EXPECT_EQ(key(ControlKind::label, u"Marlow && Hale"), std::nullopt);
    EXPECT_EQ(key(ControlKind::check_box, u"&&&a&"), u'a');
    EXPECT_EQ(key(ControlKind::check_box, u"none&"), std::nullopt);
    EXPECT_EQ(key(ControlKind::text_box, u"&text"), std::nullopt);
}

} // namespace
} // namespace ornavel::forms
