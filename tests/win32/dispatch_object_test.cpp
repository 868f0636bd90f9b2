#include "tests/win32/fake_dispatch.h"
#include "win32/com_objects.h"
#include "win32/dispatch_object.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {
namespace {

class LateBinding : public testing::Test {
protected:
    /// Makes the fake answer every call with this value.
    void answers(VARIANT value) {
        fake->answer_call = [value](const Invocation&, VARIANT* result, EXCEPINFO*) {
            if (result) VariantCopy(result, const_cast<VARIANT*>(&value));
            return S_OK;
        };
    }
    void fails(
        HRESULT code, std::function<void(EXCEPINFO&)> fill = [](EXCEPINFO&) {}) {
        fake->answer_call = [=](const Invocation&, VARIANT*, EXCEPINFO* exception) {
            fill(*exception);
            return code;
        };
    }
    Text error_of_a_call() {
        try {
            object->call({u"Save"}, {});
        } catch (const host::Error& error) {
            return error.description();
        }
        return u"no error";
    }

    ComPtr<FakeDispatch> fake = make_fake({u"Subject", u"Save", u"Add", u"Item"});
    host::ObjectPtr object = object_of(static_cast<IDispatch*>(fake.get()));
};

VARIANT long_variant(LONG number) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

TEST_F(LateBinding, AGetIsAPropertyOrAMethodWithoutArguments) {
    answers(long_variant(5));
    EXPECT_EQ(object->get({u"Subject"}, {}), host::Value(std::int32_t{5}));
    ASSERT_EQ(fake->invocations.size(), 1U);
    EXPECT_EQ(fake->invocations[0].id, 1);
    EXPECT_EQ(fake->invocations[0].how, DISPATCH_PROPERTYGET | DISPATCH_METHOD);
    EXPECT_TRUE(fake->invocations[0].arguments.empty());
}

TEST_F(LateBinding, APutNamesItsValue) {
    object->put({u"Subject"}, Text(u"Grüße"));
    EXPECT_EQ(fake->invocations[0].how, DISPATCH_PROPERTYPUT);
    EXPECT_TRUE(fake->invocations[0].names_its_value);
    EXPECT_EQ(fake->invocations[0].arguments, host::Arguments{Text(u"Grüße")});
}

TEST_F(LateBinding, AnObjectIsPutLikeAnyOtherValue) {
    const auto item = make_fake();
    object->put({u"Item"}, object_of(static_cast<IDispatch*>(item.get())));
    EXPECT_EQ(fake->invocations[0].how, DISPATCH_PROPERTYPUT);
    EXPECT_EQ(fake->invocations[0].types, std::vector<VARTYPE>{VT_DISPATCH});
    EXPECT_EQ(dispatch_of(std::get<host::ObjectPtr>(fake->invocations[0].arguments[0])).get(),
              static_cast<IDispatch*>(item.get()));
}

TEST_F(LateBinding, ArgumentsArriveInTheirOrderAndType) {
    object->call({u"Add"}, {std::int32_t{1}, host::Omitted{}, Text(u"two"), true, 2.5, host::Date{37945.5},
                            host::ObjectPtr()});
    const std::vector<VARTYPE> types{VT_I4, VT_ERROR, VT_BSTR, VT_BOOL, VT_R8, VT_DATE, VT_DISPATCH};
    EXPECT_EQ(fake->invocations[0].types, types);
    const host::Arguments expected{std::int32_t{1},     host::Omitted{},  Text(u"two"), true, 2.5,
                                   host::Date{37945.5}, host::ObjectPtr()};
    EXPECT_EQ(fake->invocations[0].arguments, expected);
}

TEST_F(LateBinding, AResultIsLeftWhereItsPlaceIs) {
    class Writer final : public FakeDispatch {
        HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*,
                                         EXCEPINFO*, UINT*) override {
            EXPECT_EQ(parameters->rgvarg[0].vt, VT_BYREF | VT_VARIANT);
            *parameters->rgvarg[0].pvarVal = to_variant(Text(u"read")).release();
            return S_OK;
        }
    };
    const auto writer = ComPtr<FakeDispatch>::adopt(new Writer);
    writer->members = {u"GetStringValue"};
    host::Result result;
    object_of(static_cast<IDispatch*>(writer.get()))->call({u"GetStringValue"}, {Text(u"key"), &result});
    EXPECT_EQ(result.value, host::Value(Text(u"read")));
}

TEST_F(LateBinding, AMemberThatIsNotThereIsAnError) {
    EXPECT_THROW(object->get({u"Missing"}, {}), host::Error);
    EXPECT_TRUE(fake->invocations.empty());
}

TEST_F(LateBinding, AnErrorBringsTheHostsOwnDescription) {
    fails(DISP_E_EXCEPTION,
          [](EXCEPINFO& info) { info.bstrDescription = Bstr(u"The item is gone").release(); });
    EXPECT_EQ(error_of_a_call(), u"The item is gone");
}

HRESULT STDMETHODCALLTYPE fill_in_late(EXCEPINFO* exception) {
    exception->bstrDescription = Bstr(u"Filled in").release();
    return S_OK;
}

TEST_F(LateBinding, ADescriptionThatIsFilledInLaterIsAskedFor) {
    fails(DISP_E_EXCEPTION, [](EXCEPINFO& info) { info.pfnDeferredFillIn = fill_in_late; });
    EXPECT_EQ(error_of_a_call(), u"Filled in");
}

TEST_F(LateBinding, AnErrorWithoutADescriptionSaysWhatTheSystemSays) {
    fails(DISP_E_EXCEPTION, [](EXCEPINFO& info) { info.scode = E_ACCESSDENIED; });
    const Text from_exception = error_of_a_call();
    fails(E_ACCESSDENIED);
    EXPECT_EQ(error_of_a_call(), from_exception);
    EXPECT_FALSE(from_exception.empty());
    EXPECT_FALSE(from_exception.ends_with(u'\n'));
}

TEST_F(LateBinding, NoReferenceStaysBehind) {
    answers(long_variant(1));
    object->call({u"Add"}, {object, Text(u"x")});
    fake->invocations.clear();
    object.reset();
    EXPECT_EQ(fake->others(), 0U);
}

TEST(ComObjects, WhatIsNotRegisteredIsAnError) {
    ComObjects objects;
    EXPECT_THROW(objects.create(u"Ornavel.NoSuchClass"), host::Error);
    EXPECT_THROW(objects.get(u"nosuchmoniker:x"), host::Error);
}

TEST(ComObjects, AClassOfTheMachineIsMadeByItsName) {
    ComObjects objects;
    const auto dictionary = objects.create(u"Scripting.Dictionary");
    dictionary->call({u"Add"}, {Text(u"one"), std::int32_t{1}});
    EXPECT_EQ(dictionary->get({u"Count"}, {}), host::Value(std::int32_t{1}));
    EXPECT_EQ(dictionary->get({u"Item"}, {Text(u"one")}), host::Value(std::int32_t{1}));
}

} // namespace
} // namespace ornavel::win32
