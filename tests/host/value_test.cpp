#include "host/value.h"

#include "host/view.h"
#include "tests/refusal.h"

#include <gtest/gtest.h>

namespace ornavel::host {
namespace {

TEST(Value, AnEmptyValueIsNothingOfEachType) {
    EXPECT_EQ(as_text(Empty{}), u"");
    EXPECT_EQ(as_number(Empty{}), 0);
    EXPECT_FALSE(as_flag(Empty{}));
    EXPECT_EQ(as_object_or_nothing(Empty{}), nullptr);
}

TEST(Value, NumbersAndTextsConvertWhereTheTextIsANumber) {
    EXPECT_EQ(as_text(std::int32_t{-12}), u"-12");
    EXPECT_EQ(as_number(Text(u"-12")), -12);
    EXPECT_EQ(as_number(2.5), 2);
    EXPECT_EQ(as_number(Text(u"1234567890")), 1234567890);
    EXPECT_EQ(as_text(2.5), u"2");
    EXPECT_TRUE(as_flag(std::int32_t{-1}));
    EXPECT_TRUE(as_flag(Text(u"true")));
    EXPECT_FALSE(as_flag(Text(u"0")));
    EXPECT_FALSE(as_flag(Text(u"false")));
    EXPECT_EQ(as_text(true), u"True");
}

TEST(Value, AnythingElseIsAnErrorOfTheHost) {
    EXPECT_THROW(as_number(Text(u"abc")), Error);
    EXPECT_THROW(as_number(Text()), Error);
    EXPECT_THROW(as_number(1e300), Error);
    EXPECT_THROW(as_text(ObjectPtr{}), Error);
    EXPECT_THROW(as_object(ObjectPtr{}), Error);
    EXPECT_THROW(as_object(Text(u"x")), Error);
    EXPECT_THROW(as_flag(Text(u"yes")), Error);
    EXPECT_THROW(as_number(ObjectPtr{}), Error);
    EXPECT_EQ(refusal_of([] { as_number(Text(u"abc")); }), u"Type mismatch");
    EXPECT_EQ(refusal_of([] { as_object(Empty{}); }), u"Object variable not set");
}

TEST(View, ThatHoldsNothingFailsInsteadOfCrashing) {
    struct Named : ViewOf<u"Thing"> {
        using ViewOf::ViewOf;
        Text name() const { return as_text(get({u"Name"})); }
    };
    EXPECT_FALSE(Named());
    try {
        Named().name();
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), u"Object variable not set");
        EXPECT_EQ(error.member(), u"Thing.Name");
    }
}

TEST(Error, TellsADeveloperTheMemberAndTheCodeAndTheLogTheHostsOwnWords) {
    const Error error(u"The item is gone.", u"MailItem.HTMLBody", static_cast<std::int32_t>(0x8004010F));
    EXPECT_EQ(error.description(), u"The item is gone.");
    EXPECT_STREQ(error.what(), "MailItem.HTMLBody failed with 0x8004010F: The item is gone.");
    EXPECT_STREQ(Error(u"Gone.", u"Item", 0x01234567).what(), "Item failed with 0x01234567: Gone.");
    EXPECT_STREQ(Error(u"Gone.", u"Item", ~0x76543210).what(), "Item failed with 0x89ABCDEF: Gone.");
}

} // namespace
} // namespace ornavel::host
