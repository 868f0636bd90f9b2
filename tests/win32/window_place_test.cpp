#include "tests/win32/form_stage.h"
#include "win32/twips.h"

namespace ornavel::win32 {
namespace {

struct WindowPlace : FormWindowTest {
    WindowPlace() {
        form.sizable = true;
        form.centred = false;
        form.properties.place = {1500, 750, 7500, 6000};
    }
    static RECT frame_of(HWND window) {
        RECT frame;
        GetWindowRect(window, &frame);
        return frame;
    }
    static forms::Bounds place_of(HWND window) { return Scale::of_screen().twips(frame_of(window)); }
};

TEST_F(WindowPlace, AFormThatWasLeftOutsideTheScreenComesBackIntoIt) {
    form.properties.place = {300000, -900000, 7500, 6000};
    show(form, {[](HWND window) {
             RECT desk, common;
             SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
             const RECT frame = frame_of(window);
             IntersectRect(&common, &frame, &desk);
             EXPECT_TRUE(EqualRect(&common, &frame));
         }});
    EXPECT_EQ(form.properties.place.top, 0);
    EXPECT_EQ(form.properties.place.width, 7500);
}

TEST_F(WindowPlace, AMaximisedFormKeepsThePlaceToWhichItReturns) {
    std::vector<int> widths;
    form.on_resize = [&] { widths.push_back(form.room().width); };
    show(form, {[](HWND window) { SendMessageW(window, WM_SYSCOMMAND, SC_MAXIMIZE, 0); },
                [&](HWND window) {
                    EXPECT_TRUE(IsZoomed(window));
                    EXPECT_EQ(form.properties.place, (forms::Bounds{1500, 750, 7500, 6000}));
                    EXPECT_GT(widths.back(), 15000) << "its controls have the room of the whole screen";
                },
                [](HWND window) { SendMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0); },
                [&](HWND window) {
                    EXPECT_EQ(place_of(window), (forms::Bounds{1500, 750, 7500, 6000}));
                    EXPECT_LT(widths.back(), 7500);
                }});
    EXPECT_EQ(form.properties.place, (forms::Bounds{1500, 750, 7500, 6000}));
}

TEST_F(WindowPlace, AFormThatIsClosedWhileItIsMaximisedComesBackWhereItWas) {
    show(form, {[](HWND window) { SendMessageW(window, WM_SYSCOMMAND, SC_MAXIMIZE, 0); }, [](HWND) {}});
    EXPECT_EQ(form.properties.place, (forms::Bounds{1500, 750, 7500, 6000}));
}

TEST_F(WindowPlace, CodeThatChangesAMaximisedFormLeavesItMaximised) {
    form.on(u"cmdSend", Event::click, [this] { form.take_place({1500, 750, 9000, 7500}); });
    show(form,
         {[](HWND window) { SendMessageW(window, WM_SYSCOMMAND, SC_MAXIMIZE, 0); }, pressing(L"cmdSend"),
          [&](HWND window) {
              EXPECT_TRUE(IsZoomed(window));
              EXPECT_GT(form.room().width, 15000);
          }});
}

TEST_F(WindowPlace, AnIconIsNoPlace) {
    show(form, {[](HWND window) { ShowWindow(window, SW_MINIMIZE); },
                [&](HWND window) {
                    EXPECT_TRUE(IsIconic(window));
                    EXPECT_EQ(form.properties.place, (forms::Bounds{1500, 750, 7500, 6000}));
                }});
    EXPECT_EQ(form.properties.place, (forms::Bounds{1500, 750, 7500, 6000}));
}

TEST_F(WindowPlace, AWindowCannotBeMadeSmallerThanItsControlsNeed) {
    form.least_room = {4500, 3000};
    show(form, {[](HWND window) { SetWindowPos(window, nullptr, 0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER); },
                [](HWND window) {
                    RECT room;
                    GetClientRect(window, &room);
                    const RECT least = Scale::of_screen().pixels({0, 0, 4500, 3000});
                    EXPECT_EQ(room.right, least.right);
                    EXPECT_EQ(room.bottom, least.bottom);
                }});
    EXPECT_EQ(form.room(), (forms::Size{4500, 3000}));
}

HWND size_grip(HWND window) { return FindWindowExW(window, nullptr, L"ScrollBar", nullptr); }

TEST_F(WindowPlace, AFormThatTheUserSizesHasAGripInItsCorner) {
    const auto expect_in_corner = [](HWND window) {
        RECT room, grip;
        GetClientRect(window, &room);
        GetWindowRect(size_grip(window), &grip);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&grip), 2);
        EXPECT_EQ(grip.right, room.right);
        EXPECT_EQ(grip.bottom, room.bottom);
        EXPECT_TRUE(IsWindowVisible(size_grip(window)));
    };
    show(form, {expect_in_corner, [&](HWND window) {
                    SetWindowPos(window, nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
                    expect_in_corner(window);
                    SendMessageW(window, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
                    EXPECT_FALSE(IsWindowVisible(size_grip(window)));
                }});
    form.sizable = false;
    show(form, {[](HWND window) { EXPECT_EQ(size_grip(window), nullptr); }});
}

TEST_F(WindowPlace, AFormOfOneSizeHasTheRoomThatItWasDesignedWith) {
    form.sizable = false;
    const forms::Size designed = form.room();
    show(form, {[&](HWND window) {
             RECT room;
             GetClientRect(window, &room);
             const RECT wanted = Scale::of_screen().pixels({0, 0, designed.width, designed.height});
             EXPECT_TRUE(EqualRect(&room, &wanted));
         }});
}

} // namespace
} // namespace ornavel::win32
