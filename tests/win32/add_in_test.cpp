#include "tests/win32/fake_dispatch.h"
#include "tests/win32/made_add_in.h"
#include "win32/machine.h"

#include <set>

namespace ornavel::win32 {
namespace {

class AddIn : public MadeAddIn {
protected:
    static VARIANT variant(VARTYPE type, LONG number = 0) {
        VARIANT made{};
        made.vt = type;
        made.lVal = number;
        return made;
    }
    HRESULT invoke(DISPID id, std::vector<VARIANT> last_argument_first) {
        DISPPARAMS parameters{last_argument_first.data(), nullptr,
                              static_cast<UINT>(last_argument_first.size()), 0};
        return add_in->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                              nullptr, nullptr);
    }
};

TEST_F(AddIn, AnswersTheMailClientsTable) {
    const auto application = make_fake();
    EXPECT_EQ(add_in->OnConnection(application.get(), 1, nullptr, nullptr), S_OK);
    EXPECT_EQ(add_in->OnAddInsUpdate(nullptr), S_OK);
    EXPECT_EQ(add_in->OnStartupComplete(nullptr), S_OK);
    EXPECT_EQ(add_in->OnBeginShutdown(nullptr), S_OK);
    EXPECT_EQ(add_in->OnDisconnection(0, nullptr), S_OK);
    add_in = {};
    EXPECT_EQ(application->others(), 0U);
}

TEST_F(AddIn, AnswersWithoutAnApplication) {
    EXPECT_EQ(add_in->OnConnection(nullptr, 0, nullptr, nullptr), S_OK);
    EXPECT_EQ(add_in->OnStartupComplete(nullptr), S_OK);
    EXPECT_EQ(add_in->OnBeginShutdown(nullptr), S_OK);
    EXPECT_EQ(add_in->OnDisconnection(99, nullptr), S_OK);
}

TEST_F(AddIn, KnowsItsHandlersByName) {
    const wchar_t* names[] = {L"OnConnection", L"ondisconnection", L"OnAddInsUpdate", L"OnStartupComplete",
                              L"OnBeginShutdown"};
    for (DISPID expected = 1; const wchar_t* name : names) {
        std::wstring copy = name;
        LPOLESTR pointer = copy.data();
        DISPID id = 0;
        EXPECT_EQ(add_in->GetIDsOfNames(IID_NULL, &pointer, 1, 0, &id), S_OK);
        EXPECT_EQ(id, expected++);
    }
    wchar_t unknown[] = L"OnNothing";
    LPOLESTR pointer = unknown;
    DISPID id = 0;
    EXPECT_EQ(add_in->GetIDsOfNames(IID_NULL, &pointer, 1, 0, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(AddIn, AnswersLateBoundCallsWithTheirArguments) {
    const auto application = make_fake();
    VARIANT client = variant(VT_DISPATCH);
    client.pdispVal = application.get();
    EXPECT_EQ(invoke(1, {variant(VT_EMPTY), variant(VT_EMPTY), variant(VT_I4, 1), client}), S_OK);
    EXPECT_EQ(invoke(4, {variant(VT_EMPTY)}), S_OK);
    EXPECT_EQ(invoke(5, {variant(VT_EMPTY)}), S_OK);
    EXPECT_EQ(invoke(2, {variant(VT_EMPTY), variant(VT_I4, 0)}), S_OK);
    add_in = {};
    EXPECT_EQ(application->others(), 0U);
}

TEST_F(AddIn, AnswersOddLateBoundCallsToo) {
    for (DISPID id = 1; id <= 5; ++id) {
        EXPECT_EQ(invoke(id, {}), S_OK) << id;
        EXPECT_EQ(invoke(id, {variant(VT_ERROR, DISP_E_EXCEPTION)}), S_OK) << id;
        EXPECT_EQ(add_in->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr), S_OK)
            << id;
    }
    EXPECT_EQ(invoke(0, {}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invoke(6, {}), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AddIn, GivesOutNoOtherInterface) {
    ComPtr<IConnectionPointContainer> container;
    EXPECT_EQ(add_in->QueryInterface(IID_IConnectionPointContainer, container.out_untyped()), E_NOINTERFACE);
    EXPECT_FALSE(container);
}

TEST_F(AddIn, KeepsTheDllUntilItsLastReferenceIsGone) {
    EXPECT_EQ(AddInDll().call("DllCanUnloadNow"), S_FALSE);
    add_in = {};
    EXPECT_EQ(AddInDll().call("DllCanUnloadNow"), S_OK);
}

TEST_F(AddIn, ASinkThatTheMailClientHasNotGivenBackYetKeepsTheDll) {
    const AddInDll dll;
    const auto application = make_fake();
    application->event_interface = {0x0006304E, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
    add_in->OnConnection(application.get(), 1, nullptr, nullptr);
    ComPtr<IDispatch> sink = application->sink;
    ASSERT_TRUE(sink);
    add_in->OnDisconnection(0, nullptr);
    add_in = {};
    EXPECT_EQ(dll.call("DllCanUnloadNow"), S_FALSE);
    sink = {};
    EXPECT_EQ(dll.call("DllCanUnloadNow"), S_OK);
}

TEST_F(AddIn, ALockOnTheFactoryKeepsTheDll) {
    add_in = {};
    const AddInDll dll;
    CLSID class_id{};
    CLSIDFromProgID(L"Ornavel.Connect", &class_id);
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(
        CoGetClassObject(class_id, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.out_untyped()),
        S_OK);
    factory->LockServer(TRUE);
    ComPtr<IClassFactory> locked = std::move(factory);
    EXPECT_EQ(dll.call("DllCanUnloadNow"), S_FALSE);
    locked->LockServer(FALSE);
    locked = {};
    EXPECT_EQ(dll.call("DllCanUnloadNow"), S_OK);
}

TEST_F(AddIn, CannotBeAggregated) {
    CLSID class_id{};
    CLSIDFromProgID(L"Ornavel.Connect", &class_id);
    const auto outer = make_fake();
    ComPtr<IUnknown> inner;
    EXPECT_EQ(CoCreateInstance(class_id, static_cast<IDispatch*>(outer.get()), CLSCTX_INPROC_SERVER,
                               IID_IUnknown, inner.out_untyped()),
              CLASS_E_NOAGGREGATION);
}

TEST(AddInResources, HoldTheSameTextsAsTheProgram) {
    const AddInDll dll;
    const ResourceStrings resources(dll.module());
    for (int id = 0; id < 65536; ++id)
        if (const auto built_in = forms::built_in_strings().find(id); built_in && !built_in->empty())
            EXPECT_EQ(resources.find(id), built_in) << id;
        else
            EXPECT_EQ(resources.find(id), std::nullopt) << id;
}

/// Width in pixels and bits for each, of all the images of an icon.
std::multiset<std::pair<int, int>> images_of_icon(HMODULE module, int id) {
    std::multiset<std::pair<int, int>> images;
    const HRSRC group = FindResourceW(module, MAKEINTRESOURCEW(id), reinterpret_cast<LPCWSTR>(RT_GROUP_ICON));
    if (!group) return images;
    const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(module, group)));
    constexpr int header = 6, entry = 14, depth = 6;
    for (const BYTE* image = bytes + header; image != bytes + header + entry * bytes[4]; image += entry)
        images.emplace(image[0], image[depth]);
    return images;
}

TEST(AddInResources, HoldTheIconInEverySizeForEveryScreen) {
    const std::multiset<std::pair<int, int>> expected{{16, 8},  {16, 32}, {32, 8},
                                                      {32, 32}, {48, 8},  {48, 32}};
    EXPECT_EQ(images_of_icon(AddInDll().module(), 1), expected);
}

} // namespace
} // namespace ornavel::win32
