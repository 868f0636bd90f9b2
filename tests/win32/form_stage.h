#pragma once

#include "base/encoding.h"
#include "forms/frmMessage.h"
#include "win32/machine.h"
#include "win32/wide.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>

namespace ornavel::win32 {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::Form;

/// What a test does while windows are open, one act for each tick of a timer; a window that is still open
/// after the last act is closed by its frame.
using Acts = std::deque<std::function<void(HWND)>>;

/// Runs the body, which shows windows, while the acts are played.
void play(Acts acts, const std::function<void()>& body);
/// Shows the form in its real window while the acts are played.
void show(Form& form, Acts acts);

/// The form or box of this thread that is in front.
HWND open_window();
/// A window of the mail client's, in front of which forms appear.
HWND make_window(const wchar_t* title);
/// The window of a form's control, by its name.
HWND control(HWND form, const wchar_t* name);
/// The tool tips of a form.
HWND tool_tips();
Text text_in(HWND window);
bool is_topmost(HWND window);

std::function<void(HWND)> pressing(const wchar_t* button);
std::function<void(HWND)> key(WPARAM code);
/// Tells the form what happened to its control.
void notify(HWND form, const wchar_t* control, WORD code);

/// A form with something of every kind that has a window, and of one that has none.
struct FormWindowTest : testing::Test {
    Form form{{.name = u"frmOrder", .place = {0, 0, 6000, 4500}, .caption = u"Order"},
              {{.kind = ControlKind::text_box, .name = u"txtNote", .place = {150, 150, 2400, 315}},
               {.kind = ControlKind::combo_box,
                .name = u"cboSize",
                .place = {150, 600, 2400, 315},
                .text = u"small",
                .items = {u"small", u"large"},
                .index = 0},
               {.kind = ControlKind::check_box,
                .name = u"chkGift",
                .place = {150, 1050, 2400, 255},
                .caption = u"A gift"},
               {.kind = ControlKind::frame,
                .name = u"fraMore",
                .place = {3000, 150, 2700, 1200},
                .caption = u"More"},
               {.kind = ControlKind::label,
                .name = u"lblHint",
                .place = {150, 300, 2400, 255},
                .frame = u"fraMore"},
               {.kind = ControlKind::text_box,
                .name = u"txtTips",
                .place = {150, 1500, 2400, 900},
                .text = u"first tip",
                .locked = true,
                .several_lines = true},
               {.kind = ControlKind::command_button,
                .name = u"cmdSend",
                .place = {150, 3000, 1500, 375},
                .caption = u"&Send",
                .tool_tip = u"Sends it",
                .is_default = true},
               {.kind = ControlKind::command_button,
                .name = u"cmdCancel",
                .place = {1800, 3000, 1500, 375},
                .caption = u"Cancel",
                .is_cancel = true},
               {.kind = ControlKind::menu, .name = u"mnFile", .caption = u"File"}}};
    Text events;

    void note(TextView name, Event event, TextView mark) {
        form.on(name, event, [this, mark] { events += mark; });
    }
    void unload_on(TextView button, TextView mark) {
        form.on(button, Event::click, [this, mark] {
            events += mark;
            form.unload();
        });
    }
};

} // namespace ornavel::win32
