#pragma once

#include "rehearsal/scripted_user.h"

#include <windows.h>

#include <list>

namespace ornavel::rehearsal {

/// The scripted user at the screen: answers the message boxes of this thread and works in its forms as they
/// appear, and writes down what they looked like. There is one at a time.
class ScreenUser {
public:
    explicit ScreenUser(ScriptedUser& user);
    ~ScreenUser();
    ScreenUser(const ScreenUser&) = delete;
    ScreenUser& operator=(const ScreenUser&) = delete;

    const Json& windows() const { return windows_; }

private:
    struct OpenForm {
        HWND window;
        std::size_t record; ///< its place among the windows
        std::optional<UserEntry> entry;
        std::size_t steps_taken = 0;
        bool has_steps_left() const { return entry && steps_taken < entry->steps.size(); }
        bool busy = false; ///< in the middle of a step, which may have opened another window
    };

    static LRESULT CALLBACK on_message(HWND window, UINT message, WPARAM word, LPARAM pointer);
    static LRESULT CALLBACK on_window_event(int event, WPARAM window, LPARAM pointer);

    void look();
    void look_again() const { PostMessageW(eye_, WM_APP, 0, 0); }
    bool knows(HWND window) const;
    void meet(HWND window);
    void meet_form(HWND window);
    void go_on(OpenForm& form);
    void take_next_step(OpenForm& form);
    void note_closing(HWND window);

    ScriptedUser& user_;
    HWND eye_; ///< an unseen window that is told when to look
    HHOOK hook_;
    std::list<OpenForm> open_; ///< the last one is in front
    Json windows_ = Json::array();
};

} // namespace ornavel::rehearsal
