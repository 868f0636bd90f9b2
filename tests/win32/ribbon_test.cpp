#include "tests/win32/fake_dispatch.h"
#include "tests/win32/made_add_in.h"
#include "win32/ribbon_extensibility.h"

namespace ornavel::win32 {
namespace {

/// The add-in as a mail client with a ribbon gets it.
class Ribbon : public MadeAddIn {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(MadeAddIn::SetUp());
        ASSERT_EQ(add_in->QueryInterface(IID_IRibbonExtensibility, ribbon.out_untyped()), S_OK);
    }
    void TearDown() override {
        ribbon = {};
        MadeAddIn::TearDown();
    }

    static DISPID number(IDispatch* dispatch, std::wstring name) {
        LPOLESTR names[] = {name.data()};
        DISPID id = 0;
        dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
        return id;
    }
    static host::Value call(IDispatch* dispatch, DISPID id, VARIANT argument) {
        DISPPARAMS parameters{&argument, nullptr, 1, 0};
        Variant answer;
        EXPECT_EQ(dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                   answer.address(), nullptr, nullptr),
                  S_OK);
        return to_value(std::move(answer));
    }
    static VARIANT passed(IDispatch* object) {
        VARIANT variant{};
        variant.vt = VT_DISPATCH;
        variant.pdispVal = object;
        return variant;
    }
    /// A control that answers its Id and its Tag.
    static ComPtr<FakeDispatch> control(TextView id, TextView tag) {
        auto fake = make_fake({u"Id", u"Tag"});
        fake->answer_call = [id = Text(id), tag = Text(tag)](const Invocation& use, VARIANT* result,
                                                             EXCEPINFO*) {
            *result = to_variant(use.id == 1 ? id : tag).release();
            return S_OK;
        };
        return fake;
    }
    Text markup(const wchar_t* ribbon_id) {
        const BSTR id = SysAllocString(ribbon_id);
        BSTR text = nullptr;
        EXPECT_EQ(ribbon->GetCustomUI(id, &text), S_OK);
        const Text answer = text_of_bstr(text);
        SysFreeString(id);
        SysFreeString(text);
        return answer;
    }

    ComPtr<IRibbonExtensibility> ribbon;
};

TEST_F(Ribbon, IsAnotherFaceOfTheSameObject) {
    ComPtr<IUnknown> own, faces;
    add_in->QueryInterface(IID_IUnknown, own.out_untyped());
    ribbon->QueryInterface(IID_IUnknown, faces.out_untyped());
    EXPECT_EQ(own.get(), faces.get());
    ComPtr<IDTExtensibility2> back;
    EXPECT_EQ(ribbon->QueryInterface(IID_IDTExtensibility2, back.out_untyped()), S_OK);
    EXPECT_EQ(back.get(), add_in.get());
}

TEST_F(Ribbon, KeepsTheAddInWhereNothingElseDoes) {
    add_in = {};
    EXPECT_NE(markup(L"Microsoft.Outlook.Explorer"), u"");
    EXPECT_EQ(AddInDll().call("DllCanUnloadNow"), S_FALSE);
}

TEST_F(Ribbon, GivesMarkupForItsTwoWindowsAndNothingForOthers) {
    EXPECT_TRUE(markup(L"Microsoft.Outlook.Explorer").starts_with(u"<customUI"));
    EXPECT_TRUE(markup(L"Microsoft.Outlook.Mail.Compose").starts_with(u"<customUI"));
    for (const wchar_t* other : {L"", L"Microsoft.Outlook.Mail.Read", L"Microsoft.Mso.IMLayerUI"})
        EXPECT_EQ(markup(other), u"");
    BSTR text = nullptr;
    EXPECT_EQ(ribbon->GetCustomUI(nullptr, &text), S_OK);
    EXPECT_EQ(SysStringLen(text), 0U);
    SysFreeString(text);
    EXPECT_EQ(ribbon->GetCustomUI(nullptr, nullptr), S_OK);
}

TEST_F(Ribbon, GivesItsMarkupLateBoundToo) {
    const DISPID id = number(ribbon.get(), L"getcustomui");
    EXPECT_EQ(id, 1);
    VARIANT argument{};
    argument.vt = VT_BSTR;
    argument.bstrVal = SysAllocString(L"Microsoft.Outlook.Explorer");
    EXPECT_EQ(call(ribbon.get(), id, argument), host::Value(markup(L"Microsoft.Outlook.Explorer")));
    VariantClear(&argument);
    EXPECT_EQ(call(ribbon.get(), id, passed(nullptr)), host::Value(Text()));
}

TEST_F(Ribbon, ItsCallbacksHaveTheSameNumbersOnBothFaces) {
    std::vector<DISPID> numbers;
    for (const wchar_t* name : {L"onLoad", L"getLabel", L"getVisible", L"ONACTION"}) {
        numbers.push_back(number(ribbon.get(), name));
        EXPECT_EQ(numbers.back(), number(add_in.get(), name));
        EXPECT_GT(numbers.back(), 5);
    }
    EXPECT_EQ(number(ribbon.get(), L"getImage"), DISPID_UNKNOWN);
    EXPECT_EQ(number(ribbon.get(), L"OnConnection"), DISPID_UNKNOWN);
}

TEST_F(Ribbon, AnswersForItsOwnControlsOnBothFaces) {
    const auto setup = control(u"OrnavelSetup", u"ButtonWiz");
    for (IDispatch* face : {static_cast<IDispatch*>(add_in.get()), static_cast<IDispatch*>(ribbon.get())})
        EXPECT_EQ(call(face, number(face, L"getLabel"), passed(setup.get())),
                  host::Value(Text(u"Ornavel Setup")));
    EXPECT_EQ(setup->others(), 0U);
}

TEST_F(Ribbon, StrangeControlsAnswerNothingAndNothingFails) {
    const auto silent = make_fake(), failing = make_fake({u"Id", u"Tag"}), mad = make_fake({u"Id", u"Tag"});
    failing->answer_call = [](const Invocation&, VARIANT*, EXCEPINFO*) { return E_FAIL; };
    mad->answer_call = [&](const Invocation&, VARIANT* result, EXCEPINFO*) {
        result->vt = VT_ERROR;
        result->scode = E_FAIL;
        return S_OK;
    };
    const auto unknown = control(u"OrnavelSetup", u"Nobody");
    VARIANT error{}, number_five{};
    error.vt = VT_ERROR;
    error.scode = E_FAIL;
    number_five.vt = VT_I4;
    number_five.lVal = 5;
    for (const wchar_t* name : {L"onLoad", L"getLabel", L"getVisible", L"onAction"})
        for (const VARIANT& argument : {passed(nullptr), passed(silent.get()), passed(failing.get()),
                                        passed(mad.get()), passed(unknown.get()), error, number_five})
            EXPECT_EQ(call(ribbon.get(), number(ribbon.get(), name), argument), host::Value());
    // What is loaded is kept until the add-in lets go; the add-in here was never connected.
    add_in->OnDisconnection(0, nullptr);
    EXPECT_EQ(silent->others() + failing->others() + mad->others() + unknown->others(), 0U);
}

TEST_F(Ribbon, CallsWithoutArgumentsAnswersOrSenseEndWell) {
    for (const wchar_t* name : {L"onLoad", L"getLabel", L"getVisible", L"onAction"}) {
        const DISPID id = number(ribbon.get(), name);
        DISPPARAMS none{};
        for (DISPPARAMS* parameters : {&none, static_cast<DISPPARAMS*>(nullptr)})
            EXPECT_EQ(ribbon->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, parameters, nullptr, nullptr, nullptr),
                      S_OK);
    }
    EXPECT_EQ(ribbon->Invoke(999, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(ribbon->Invoke(2, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
}

} // namespace
} // namespace ornavel::win32
