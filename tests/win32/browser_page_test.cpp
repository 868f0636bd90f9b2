// What a page may do in a form, with a browser control that asks for everything.
#include "tests/win32/fake_browser.h"
#include "tests/win32/form_stage.h"

#include <mshtmdid.h>

namespace ornavel::win32 {
namespace {

constexpr TextView page = u"C:\\Ornavel files\\myTestHtmlFile.html";

struct BrowserPage : testing::Test {
    Form form{{.name = u"frmPage", .place = {0, 0, 6000, 4500}},
              {{.kind = ControlKind::command_button,
                .name = u"cmdSend",
                .place = {150, 150, 1500, 375},
                .is_default = true},
               {.kind = ControlKind::web_browser, .name = u"brwPage", .place = {150, 600, 4500, 2400}},
               {.kind = ControlKind::command_button,
                .name = u"cmdClose",
                .place = {150, 3150, 1500, 375},
                .is_cancel = true}}};
    Text events;
    FakeBrowserClass fake;

    BrowserPage() {
        form[u"brwPage"].visit(page);
        form.on(u"cmdSend", Event::click, [this] { events += u"sent;"; });
        form.on(u"cmdClose", Event::click, [this] {
            events += u"closed;";
            form.unload();
        });
    }
    static FakeBrowser& browser() { return *FakeBrowser::current; }
    static bool has_the_keyboard() { return GetFocus() == browser().window; }
    static void enter_page(HWND) {
        browser().DoVerb(OLEIVERB_UIACTIVATE, nullptr, nullptr, 0, nullptr, nullptr);
    }
    static void walk_to_page(HWND window) {
        SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(window, L"brwPage")), TRUE);
    }
};

TEST_F(BrowserPage, IsShownFromItsFileAndNothingStaysOfIt) {
    show(form, {[](HWND) { EXPECT_EQ(browser().pages, std::vector<Text>{Text(page)}); }});
    EXPECT_EQ(FakeBrowser::current, nullptr) << "every reference to the control is given back";
}

TEST_F(BrowserPage, GoesWithAFormWhoseOwnerGoes) {
    const HWND owner = make_window(L"the mail client");
    SetActiveWindow(owner);
    show(form, {[&](HWND) { DestroyWindow(owner); }});
    EXPECT_EQ(FakeBrowser::current, nullptr);
}

TEST_F(BrowserPage, ShowsLocalPicturesAndNothingThatRunsMovesSoundsOrLeavesTheMachine) {
    show(form, {[](HWND) {
             const LONG expected = DLCTL_DLIMAGES | DLCTL_FORCEOFFLINE | DLCTL_SILENT | DLCTL_NO_CLIENTPULL |
                                   DLCTL_NO_SCRIPTS | DLCTL_NO_JAVA | DLCTL_NO_DLACTIVEXCTLS |
                                   DLCTL_NO_RUNACTIVEXCTLS | DLCTL_NO_BEHAVIORS;
             EXPECT_EQ(browser().downloads, expected);
             EXPECT_EQ(browser().silent, VARIANT_TRUE);
             EXPECT_EQ(browser().offline, VARIANT_TRUE);
         }});
}

TEST_F(BrowserPage, ALinkLeadsNowhere) {
    show(form, {[](HWND) {
             for (const TextView address :
                  {u"http://www.example.com/", u"https://example.com/a?b", u"mailto:ann@example.com",
                   u"javascript:1", u"res://shdoclc.dll/dnserror.htm", u"C:\\Ornavel files\\other.html",
                   u"file:///C:/other.html", u"file://server/Ornavel%20files/myTestHtmlFile.html",
                   u"\\\\server\\share\\myTestHtmlFile.html", u"about:blank", u"",
                   u"ftp://C:/Ornavel files/myTestHtmlFile.html"})
                 EXPECT_FALSE(browser().may_go_to(address)) << to_utf8(address);
         }});
}

TEST_F(BrowserPage, TheFileItselfIsShownHoweverItIsWritten) {
    show(form, {[](HWND) {
             for (const TextView address :
                  {page, TextView(u"c:\\ORNAVEL FILES\\mytesthtmlfile.HTML"),
                   TextView(u"file:///C:/Ornavel%20files/myTestHtmlFile.html"),
                   TextView(u"file://C:\\Ornavel files\\myTestHtmlFile.html"),
                   TextView(u"C:/Ornavel files/myTestHtmlFile.html"),
                   TextView(u"file:///C:/Ornavel%20files/myTestHtmlFile.html#below")})
                 EXPECT_TRUE(browser().may_go_to(address)) << to_utf8(address);
         }});
}

TEST_F(BrowserPage, NoWindowIsOpened) {
    show(form, {[](HWND) {
             EXPECT_FALSE(browser().may_open_window(DISPID_NEWWINDOW2));
             EXPECT_FALSE(browser().may_open_window(DISPID_NEWWINDOW3));
         }});
}

TEST_F(BrowserPage, WhereItFollowsLinksItMayGoOnTheNetworkButRunsNothing) {
    form[u"brwPage"].follows_links = true;
    show(form, {[](HWND) {
             const LONG expected = DLCTL_DLIMAGES | DLCTL_SILENT | DLCTL_NO_CLIENTPULL | DLCTL_NO_SCRIPTS |
                                   DLCTL_NO_JAVA | DLCTL_NO_DLACTIVEXCTLS | DLCTL_NO_RUNACTIVEXCTLS |
                                   DLCTL_NO_BEHAVIORS;
             EXPECT_EQ(browser().downloads, expected);
             EXPECT_EQ(browser().offline, VARIANT_FALSE);
             EXPECT_TRUE(browser().may_go_to(u"http://www.example.com/help.html"));
             EXPECT_FALSE(browser().may_open_window(DISPID_NEWWINDOW2));
         }});
}

TEST_F(BrowserPage, IsOfferedTheKeysFirstWhileItHasTheKeyboard) {
    show(form, {[](HWND) {
                    browser().own_keys = {VK_DOWN, 'C'};
                    enter_page(nullptr);
                },
                key(VK_DOWN), key('C'),
                [](HWND) {
                    EXPECT_EQ(browser().keys, (std::vector<WPARAM>{VK_DOWN, 'C'}));
                    EXPECT_TRUE(has_the_keyboard());
                }});
    EXPECT_EQ(events, u"");
}

TEST_F(BrowserPage, IsOfferedNoKeysOfOtherControls) {
    show(form, {key(VK_DOWN), [](HWND) { EXPECT_TRUE(browser().keys.empty()); }});
}

TEST_F(BrowserPage, TheTabKeyReachesItAndLeavesItWhereThePageEnds) {
    show(form, {walk_to_page, [](HWND) { EXPECT_TRUE(has_the_keyboard()); },
                [](HWND) { browser().own_keys = {VK_TAB}; }, key(VK_TAB),
                [](HWND) {
                    EXPECT_TRUE(has_the_keyboard()) << "the page has more to tab through";
                    browser().own_keys = {};
                },
                key(VK_TAB), [](HWND window) { EXPECT_EQ(GetFocus(), control(window, L"cmdClose")); },
                walk_to_page, [](HWND) { EXPECT_TRUE(has_the_keyboard()) << "and a second time"; }});
}

TEST_F(BrowserPage, TheTabKeyComesToItFromTheControlBefore) {
    show(form, {[](HWND window) { EXPECT_EQ(GetFocus(), control(window, L"cmdSend")); }, key(VK_TAB),
                [](HWND) { EXPECT_TRUE(has_the_keyboard()); }});
}

TEST_F(BrowserPage, EscapeClosesTheFormAllTheSame) {
    show(form, {[](HWND) {
                    browser().own_keys = {VK_ESCAPE};
                    enter_page(nullptr);
                },
                key(VK_ESCAPE)});
    EXPECT_EQ(events, u"closed;");
}

TEST_F(BrowserPage, EnterInThePageSendsNothing) {
    show(form, {enter_page, key(VK_RETURN),
                [](HWND) { EXPECT_EQ(browser().keys, std::vector<WPARAM>{VK_RETURN}); }});
    EXPECT_EQ(events, u"");
}

TEST_F(BrowserPage, AccessKeysWorkFromInsideThePage) {
    form[u"cmdSend"].caption = u"&Send";
    show(form, {enter_page, [](HWND) { PostMessageW(GetFocus(), WM_SYSCHAR, 's', 1 << 29); }, [](HWND) {}});
    EXPECT_EQ(events, u"sent;");
}

/// The same object, whichever of its interfaces is asked which of the others; and no other object.
void expect_symmetric(IUnknown* object, const std::vector<IID>& interfaces) {
    ComPtr<IUnknown> identity;
    ASSERT_EQ(object->QueryInterface(IID_IUnknown, identity.out_untyped()), S_OK);
    for (const IID& from : interfaces) {
        ComPtr<IUnknown> face;
        ASSERT_EQ(identity->QueryInterface(from, face.out_untyped()), S_OK);
        for (const IID& to : interfaces) {
            ComPtr<IUnknown> other, same;
            EXPECT_EQ(face->QueryInterface(to, other.out_untyped()), S_OK);
            EXPECT_EQ(other->QueryInterface(IID_IUnknown, same.out_untyped()), S_OK);
            EXPECT_EQ(same.get(), identity.get());
        }
    }
}

bool has_interface(IUnknown* object, const IID& wanted) {
    ComPtr<IUnknown> face;
    return SUCCEEDED(object->QueryInterface(wanted, face.out_untyped()));
}

TEST_F(BrowserPage, ItsSiteAndItsFrameAreTwoWholeObjects) {
    show(form, {[](HWND window) {
             expect_symmetric(browser().site.get(), {IID_IUnknown, IID_IOleClientSite, IID_IOleInPlaceSite,
                                                     IID_IOleWindow, IID_IDispatch});
             expect_symmetric(browser().frame.get(),
                              {IID_IUnknown, IID_IOleInPlaceFrame, IID_IOleInPlaceUIWindow, IID_IOleWindow});
             EXPECT_FALSE(has_interface(browser().site.get(), IID_IOleInPlaceFrame));
             EXPECT_FALSE(has_interface(browser().frame.get(), IID_IOleInPlaceSite));
             HWND framed = nullptr;
             EXPECT_EQ(browser().frame->GetWindow(&framed), S_OK);
             EXPECT_EQ(framed, window);
         }});
}

} // namespace
} // namespace ornavel::win32
