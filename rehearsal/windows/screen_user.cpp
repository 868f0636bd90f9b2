#include "rehearsal/windows/screen_user.h"

#include "base/encoding.h"
#include "forms/input_box.h"
#include "rehearsal/form_record.h"
#include "rehearsal/windows/form_hand.h"
#include "rehearsal/windows/form_reader.h"
#include "rehearsal/windows/menu_hand.h"
#include "rehearsal/windows/message_box.h"
#include "rehearsal/windows/window_parts.h"
#include "rehearsal/windows/window_picture.h"
#include "win32/window_name.h"

#include <algorithm>
#include <utility>

namespace ornavel::rehearsal {
namespace {

ScreenUser* at_screen = nullptr;

BOOL CALLBACK note_dialog(HWND window, LPARAM found) {
    if (IsWindowVisible(window) && is_class(window, L"#32770"))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

std::vector<HWND> visible_dialogs() {
    std::vector<HWND> found;
    EnumThreadWindows(GetCurrentThreadId(), note_dialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND make_eye(WNDPROC procedure) {
    const HWND eye =
        CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(eye, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    return eye;
}

} // namespace

ScreenUser::ScreenUser(ScriptedUser& user)
    : user_(user), eye_(make_eye(on_message)),
      hook_(SetWindowsHookExW(WH_CBT, on_window_event, nullptr, GetCurrentThreadId())) {
    at_screen = this;
    // For what shows without becoming the active window.
    SetTimer(eye_, 1, USER_TIMER_MINIMUM, nullptr);
}

ScreenUser::~ScreenUser() {
    UnhookWindowsHookEx(hook_);
    DestroyWindow(eye_);
    at_screen = nullptr;
}

LRESULT CALLBACK ScreenUser::on_message(HWND window, UINT message, WPARAM word, LPARAM pointer) {
    if (at_screen && (message == WM_TIMER || message == WM_APP)) attempt([] { at_screen->look(); });
    return DefWindowProcW(window, message, word, pointer);
}

LRESULT CALLBACK ScreenUser::on_window_event(int event, WPARAM window, LPARAM pointer) {
    if (at_screen && event == HCBT_ACTIVATE) at_screen->look_again();
    if (at_screen && event == HCBT_DESTROYWND)
        attempt([&] { at_screen->note_closing(reinterpret_cast<HWND>(window)); });
    return CallNextHookEx(nullptr, event, window, pointer);
}

bool ScreenUser::knows(HWND window) const {
    return std::ranges::find(open_, window, &OpenForm::window) != open_.end();
}

void ScreenUser::look() {
    if (const HWND menu = open_menu()) return meet_menu(menu);
    for (const HWND window : visible_dialogs())
        if (!knows(window)) return meet(window);
    if (!open_.empty() && !open_.back().busy) go_on(open_.back());
}

void ScreenUser::meet(HWND window) {
    if (!win32::name_of(window).empty()) return meet_form(window);
    windows_.push_back(answer_box_window(user_, window));
}

void ScreenUser::meet_form(HWND window) {
    const auto form = read_form(window);
    if (form->name() == forms::input_box_name) return meet_input_box(window, *form);
    OpenForm open{window, windows_.size(), user_.meet(form->name())};
    windows_.push_back(form_record(*form));
    if (!open.entry) windows_.back()["unexpected"] = true;
    open_.push_back(std::move(open));
    look_again();
}

void ScreenUser::meet_input_box(HWND window, forms::Form& box) {
    open_.push_back({.window = window, .record = 0, .entry = {}, .busy = true, .is_box = true});
    const Json record =
        answer_input_box(user_, box.properties.caption, forms::readable_caption(box[forms::input_box_prompt]),
                         box[forms::input_box_answer].text);
    windows_.push_back(record);
    const Json& answer = record.at("answer");
    if (answer.is_null()) return void(SendMessageW(window, WM_CLOSE, 0, 0));
    Step typing{.kind = Step::Kind::set, .control = Text(forms::input_box_answer), .text = {}};
    typing.text = from_utf8(answer.get<std::string>());
    take_step_in_window(typing, window);
    take_step_in_window({.kind = Step::Kind::click, .control = Text(forms::input_box_ok), .text = {}},
                        window);
}

void ScreenUser::begin_page(HWND page) {
    page_record_ = windows_.size();
    windows_.push_back(form_record(*read_form(page)));
}

void ScreenUser::end_page(HWND page) {
    Json& record = windows_[page_record_];
    record["at close"] = changed_controls(record, *read_form(page));
}

void ScreenUser::meet_menu(HWND window) {
    if (std::exchange(met_menu_, window) == window) return;
    menu_ = captions_in_menu(window);
    choose_in_menu(window, choice_.find(menu_));
}

/// A form has time to be drawn, with the page in it, before its picture is taken; until then the user waits.
bool ScreenUser::is_pictured(OpenForm& form) const {
    constexpr DWORD milliseconds_to_draw = 300;
    if (form.pictured || pictures_.empty()) return true;
    if (GetTickCount() - form.met < milliseconds_to_draw) return false;
    form.pictured = true;
    RECT frame;
    GetWindowRect(form.window, &frame);
    attempt(
        [&] { write_picture(frame, pictures_ + to_text(static_cast<long long>(form.record)) + u".bmp"); });
    return true;
}

void ScreenUser::go_on(OpenForm& form) {
    if (!is_pictured(form)) return;
    form.busy = true;
    take_next_step(form);
    form.busy = false;
    look_again();
}

void ScreenUser::take_next_step(OpenForm& form) {
    try {
        if (form.entry) refuse_answer(*form.entry);
        if (form.has_steps_left())
            return take_step_in_window(form.entry->steps[form.steps_taken++], form.window);
    } catch (const forms::UnusableStep& error) {
        user_.complain(*form.entry, to_utf8(error.description()));
        form.steps_taken = form.entry->steps.size();
    }
    if (std::exchange(form.was_closed, true))
        DestroyWindow(form.window);
    else
        SendMessageW(form.window, WM_CLOSE, 0, 0);
}

void ScreenUser::note_closing(HWND window) {
    const auto form = std::ranges::find(open_, window, &OpenForm::window);
    if (form == open_.end()) return;
    if (form->is_box) return void(open_.erase(form));
    const auto shown = read_form(window);
    Json& record = windows_[form->record];
    record["at close"] = changed_controls(record, *shown);
    if (form->has_steps_left()) user_.complain(*form->entry, to_utf8(shown->name()) + " is closed");
    open_.erase(form);
}

std::optional<Text> ScreenUser::answer_path(TextView title) {
    const auto& record = windows_.emplace_back(answer_path_dialog(user_, title));
    if (record.at("answer").is_null()) return {};
    return from_utf8(record["answer"].get<std::string>());
}

} // namespace ornavel::rehearsal
