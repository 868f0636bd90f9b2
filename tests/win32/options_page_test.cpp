#include "rehearsal/windows/form_reader.h"
#include "rehearsal/windows/page_host.h"
#include "tests/win32/add_in_dll.h"
#include "win32/dispatch_object.h"
#include "win32/registry_store.h"

#include <optional>

namespace ornavel::win32 {
namespace {

using namespace settings;
using rehearsal::PageHost;
using rehearsal::Step;

constexpr CLSID page_class{0x7B4C9A52, 0x6E1D, 0x4F0B, {0x9D, 0x37, 0x5A, 0x28, 0xC1, 0xE6, 0xF4, 0x93}};

/// The page as the mail client gets it: registered, made by its name, and hosted in a dialog.
class OptionsPage : public testing::Test {
protected:
    void SetUp() override {
        store.remove(user::ReplyAsIs.section, user::ReplyAsIs.name);
        ASSERT_EQ(dll->call("DllRegisterServer"), S_OK);
        CLSID id{};
        ASSERT_EQ(CLSIDFromProgID(L"BrevantPage.PropPage", &id), S_OK);
        EXPECT_EQ(id, page_class);
        ASSERT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, page.out_untyped()),
                  S_OK);
        host.emplace(page.get(), [this] { ++told; });
    }
    void TearDown() override {
        host.reset();
        page = {};
        EXPECT_EQ(dll->call("DllUnregisterServer"), S_OK);
        store.remove(user::ReplyAsIs.section, user::ReplyAsIs.name);
    }

    HWND control(TextView name) const { return rehearsal::control_window(host->window(), name); }
    void tick() {
        Step step{.kind = Step::Kind::tick, .control = u"chkReplyAsIs", .text = {}};
        step.ticked = true;
        host->take(step);
    }
    static MSG pressed(HWND window, WPARAM key) {
        MSG message{};
        message.hwnd = window;
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return message;
    }
    static MSG access_key(HWND window, WPARAM letter) {
        MSG message = pressed(window, letter);
        message.message = WM_SYSCHAR;
        message.lParam = 1 << 29; // the Alt key is held
        return message;
    }
    bool take_tab() {
        MSG key = pressed(GetFocus(), VK_TAB);
        return host->takes_key(key);
    }

    std::optional<AddInDll> dll{std::in_place};
    RegistryStore store;
    ComPtr<IDispatch> page;
    std::optional<PageHost> host;
    int told = 0;
};

TEST_F(OptionsPage, StandsInTheWindowOfTheDialogAndFillsIt) {
    EXPECT_EQ(GetParent(host->window()), host->dialog());
    EXPECT_TRUE(IsWindowVisible(host->window()));
    RECT room, inside;
    GetClientRect(host->dialog(), &room);
    GetClientRect(host->window(), &inside);
    EXPECT_TRUE(EqualRect(&room, &inside));
    EXPECT_TRUE(IsWindowVisible(control(u"cboMode")));
}

TEST_F(OptionsPage, TellsTheDialogOfAChangeAndIsDirtyUntilItIsApplied) {
    EXPECT_FALSE(host->is_dirty());
    tick();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(host->is_dirty());
    EXPECT_FALSE(is_ticked(store, user::ReplyAsIs));
    host->apply();
    EXPECT_TRUE(is_ticked(store, user::ReplyAsIs));
    EXPECT_FALSE(host->is_dirty());
}

TEST_F(OptionsPage, AnswersLateBoundCallsByNameAndByNumber) {
    DispatchObject late(page);
    tick();
    EXPECT_EQ(late.get({u"Dirty"}, {}), host::Value(true));
    late.call({u"Apply"}, {});
    EXPECT_EQ(late.get({u"Dirty"}, {}), host::Value(false));
    late.call({u"GetPageInfo"}, {});
    DISPPARAMS none{};
    Variant dirty;
    EXPECT_EQ(
        page->Invoke(0x2101, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, dirty.address(), nullptr, nullptr),
        S_OK);
    EXPECT_EQ(dirty->boolVal, VARIANT_FALSE);
    EXPECT_EQ(page->Invoke(0x2103, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
}

TEST_F(OptionsPage, TheTabKeyGoesInThroughAllControlsAndOut) {
    MSG key = pressed(host->dialog(), VK_TAB);
    host->enter(key);
    EXPECT_TRUE(host->site().is_active);
    const HWND list = control(u"cboMode");
    EXPECT_TRUE(GetFocus() == list || IsChild(list, GetFocus()));
    for (const TextView next :
         {u"cboTemplates", u"cboSignatures", u"chkAutoPreview", u"chkReplyAsIs", u"cmdSetup", u"cmdAbout"}) {
        EXPECT_TRUE(take_tab());
        const HWND there = control(next);
        EXPECT_TRUE(GetFocus() == there || IsChild(there, GetFocus()));
    }
    EXPECT_EQ(host->site().keys_given_back, 0);
    EXPECT_FALSE(take_tab());
    EXPECT_EQ(host->site().keys_given_back, 1);
}

TEST_F(OptionsPage, LeavesEnterAndEscapeToTheDialog) {
    MSG key = pressed(host->dialog(), VK_TAB);
    host->enter(key);
    for (const WPARAM each : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
        MSG other = pressed(GetFocus(), each);
        EXPECT_FALSE(host->takes_key(other));
    }
    EXPECT_TRUE(IsWindow(host->window()));
}

TEST_F(OptionsPage, TellsItsAccessKeysAndIsReachedByThemFromTheDialog) {
    ComPtr<IOleControl> control_of_dialog;
    ASSERT_EQ(host->control().QueryInterface(IID_IOleControl, control_of_dialog.out_untyped()), S_OK);
    CONTROLINFO information{};
    information.cb = sizeof information;
    ASSERT_EQ(control_of_dialog->GetControlInfo(&information), S_OK);
    ASSERT_EQ(information.cAccel, 14); // of seven controls, in small and in capital letters
    ACCEL keys[14];
    ASSERT_EQ(CopyAcceleratorTableW(information.hAccel, keys, 14), 14);
    EXPECT_TRUE(
        std::ranges::any_of(keys, [](const ACCEL& key) { return key.key == L't' && key.fVirt == FALT; }));
    MSG key = access_key(host->dialog(), L't');
    EXPECT_EQ(control_of_dialog->OnMnemonic(&key), S_OK);
    EXPECT_TRUE(IsChild(control(u"cboTemplates"), GetFocus()));
    EXPECT_EQ(control_of_dialog->GetControlInfo(nullptr), E_POINTER);
}

TEST_F(OptionsPage, LeavesAccessKeysThatAreNoneOfItsOwnToTheDialog) {
    MSG tab = pressed(host->dialog(), VK_TAB);
    host->enter(tab);
    MSG own = access_key(GetFocus(), L'T'), other = access_key(GetFocus(), L'a');
    EXPECT_FALSE(host->takes_key(other));
    EXPECT_TRUE(host->takes_key(own));
    EXPECT_TRUE(IsChild(control(u"cboTemplates"), GetFocus()));
}

TEST_F(OptionsPage, ClosesWithoutWritingAndGivesItsSiteBack) {
    tick();
    const HWND window = host->window();
    EXPECT_EQ(host->control().Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(host->site().is_in_place);
    EXPECT_FALSE(is_ticked(store, user::ReplyAsIs));
    host.reset();
    EXPECT_EQ(page.release()->Release(), 0U);
}

TEST_F(OptionsPage, KeepsWhatTheUserChangedWhenTheDialogHidesItMeanwhile) {
    tick();
    EXPECT_EQ(host->control().DoVerb(OLEIVERB_HIDE, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
    EXPECT_EQ(host->window(), nullptr);
    EXPECT_TRUE(host->is_dirty());
    EXPECT_EQ(host->control().DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, host->dialog(), nullptr), S_OK);
    EXPECT_EQ(SendMessageW(control(u"chkReplyAsIs"), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(OptionsPage, KeepsItsModuleInMemoryWhileItLives) {
    const auto can_unload = [&] { return dll->call("DllCanUnloadNow"); };
    EXPECT_EQ(can_unload(), S_FALSE);
    host.reset();
    EXPECT_EQ(can_unload(), S_FALSE);
    page = {};
    EXPECT_EQ(can_unload(), S_OK);
}

TEST_F(OptionsPage, IsNotShownWithoutASite) {
    ComPtr<IOleObject> alone;
    ASSERT_EQ(
        CoCreateInstance(page_class, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject, alone.out_untyped()),
        S_OK);
    EXPECT_EQ(alone->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, host->dialog(), nullptr), E_FAIL);
    SIZEL extent{};
    EXPECT_EQ(alone->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_GT(extent.cx, 0);
}

} // namespace
} // namespace ornavel::win32
