#include "tests/win32/fake_dispatch.h"
#include "win32/dispatch_object.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {
namespace {

VARIANT variant(VARTYPE type, const auto& fill) {
    VARIANT made{};
    made.vt = type;
    fill(made);
    return made;
}

TEST(Values, NumbersOfEveryWidthAreWholeNumbers) {
    VARIANT cases[] = {
        variant(VT_I1, [](VARIANT& v) { v.cVal = -3; }),
        variant(VT_UI1, [](VARIANT& v) { v.bVal = 250; }),
        variant(VT_I2, [](VARIANT& v) { v.iVal = -300; }),
        variant(VT_UI2, [](VARIANT& v) { v.uiVal = 65535; }),
        variant(VT_I4, [](VARIANT& v) { v.lVal = -70000; }),
        variant(VT_UI4, [](VARIANT& v) { v.ulVal = 70000; }),
    };
    const std::int32_t expected[] = {-3, 250, -300, 65535, -70000, 70000};
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(to_value(cases[i]), host::Value(expected[i])) << i;
}

TEST(Values, AnUnsignedNumberThatDoesNotFitStaysExact) {
    VARIANT big = variant(VT_UI4, [](VARIANT& v) { v.ulVal = 4294967295U; });
    EXPECT_EQ(to_value(big), host::Value(4294967295.0));
}

TEST(Values, FractionsAndDates) {
    VARIANT fraction = variant(VT_R8, [](VARIANT& v) { v.dblVal = 2.5; });
    EXPECT_EQ(to_value(fraction), host::Value(2.5));
    VARIANT currency = variant(VT_CY, [](VARIANT& v) { v.cyVal.int64 = 12500; });
    EXPECT_EQ(to_value(currency), host::Value(1.25));
    VARIANT date = variant(VT_DATE, [](VARIANT& v) { v.date = 37945.25; });
    EXPECT_EQ(to_value(date), host::Value(host::Date{37945.25}));
}

TEST(Values, EmptyAndNullAreEmpty) {
    VARIANT empty = variant(VT_EMPTY, [](VARIANT&) {});
    VARIANT null = variant(VT_NULL, [](VARIANT&) {});
    EXPECT_EQ(to_value(empty), host::Value());
    EXPECT_EQ(to_value(null), host::Value());
}

TEST(Values, ANullStringIsAnEmptyText) {
    VARIANT null = variant(VT_BSTR, [](VARIANT& v) { v.bstrVal = nullptr; });
    EXPECT_EQ(to_value(null), host::Value(Text()));
}

TEST(Values, TextsKeepEveryUnit) {
    const Text text(u"a\0b \xD800 ü", 7);
    Variant crossed = to_variant(text);
    EXPECT_EQ(to_value(*crossed.address()), host::Value(text));
}

TEST(Values, WhatIsPassedByReferenceIsRead) {
    VARIANT_BOOL flag = VARIANT_TRUE;
    VARIANT by_reference = variant(VT_BYREF | VT_BOOL, [&](VARIANT& v) { v.pboolVal = &flag; });
    EXPECT_EQ(to_value(by_reference), host::Value(true));
    Variant inner = to_variant(Text(u"inside"));
    VARIANT outer = variant(VT_BYREF | VT_VARIANT, [&](VARIANT& v) { v.pvarVal = inner.address(); });
    EXPECT_EQ(to_value(outer), host::Value(Text(u"inside")));
}

TEST(Values, AnUnknownIsAskedForItsDispatch) {
    const auto fake = make_fake();
    VARIANT unknown =
        variant(VT_UNKNOWN, [&](VARIANT& v) { v.punkVal = static_cast<IDispatch*>(fake.get()); });
    const auto object = std::get<host::ObjectPtr>(to_value(unknown));
    EXPECT_EQ(dispatch_of(object).get(), static_cast<IDispatch*>(fake.get()));
}

TEST(Values, NothingIsAnObjectThatIsNull) {
    VARIANT nothing = variant(VT_DISPATCH, [](VARIANT& v) { v.pdispVal = nullptr; });
    EXPECT_EQ(to_value(nothing), host::Value(host::ObjectPtr()));
}

TEST(Values, AnArrayIsATypeMismatch) {
    SAFEARRAYBOUND bound{2, 0};
    VARIANT array =
        variant(VT_ARRAY | VT_I4, [&](VARIANT& v) { v.parray = SafeArrayCreate(VT_I4, 1, &bound); });
    EXPECT_THROW(to_value(array), host::Error);
    VariantClear(&array);
}

} // namespace
} // namespace ornavel::win32
