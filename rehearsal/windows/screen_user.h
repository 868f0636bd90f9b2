#pragma once

#include "forms/form.h"
#include "rehearsal/scripted_user.h"
#include "rehearsal/tray_record.h"

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

    /// The answer to a file dialog, which is not shown: it would be the system's own.
    std::optional<Text> answer_path(TextView title);

    const Json& windows() const { return windows_; }
    /// From now on a picture of each form is kept, as it was when the user first touched it: in a BMP file
    /// whose path is this one, the window's place among the windows and ".bmp".
    void keep_pictures(TextView path) { pictures_ = path; }
    /// Keeps nothing of the windows so far; none of them is open.
    void forget() { windows_ = Json::array(); }

    /// The add-in's page is shown in the Options dialog, and goes; its window stands in that of the dialog.
    void begin_page(HWND page);
    void end_page(HWND page);

    /// What the user chooses in the next menu; without this a menu is closed.
    void expect_menu(MenuChoice choice) {
        choice_ = std::move(choice);
        met_menu_ = nullptr;
    }
    /// What became of that, and the captions of the menu that opened last.
    const MenuChoice& choice() const { return choice_; }
    const std::vector<Text>& menu() const { return menu_; }

private:
    struct OpenForm {
        HWND window;
        std::size_t record; ///< its place among the windows
        std::optional<UserEntry> entry;
        std::size_t steps_taken = 0;
        bool has_steps_left() const { return entry && steps_taken < entry->steps.size(); }
        bool busy = false;       ///< in the middle of a step, which may have opened another window
        bool is_box = false;     ///< an input box, which has been answered
        bool was_closed = false; ///< by its frame; one that is still open may not be closed so
        DWORD met = GetTickCount();
        bool pictured = false;
    };

    static LRESULT CALLBACK on_message(HWND window, UINT message, WPARAM word, LPARAM pointer);
    static LRESULT CALLBACK on_window_event(int event, WPARAM window, LPARAM pointer);

    void look();
    void look_again() const { PostMessageW(eye_, WM_APP, 0, 0); }
    bool knows(HWND window) const;
    void meet(HWND window);
    void meet_form(HWND window);
    void meet_input_box(HWND window, forms::Form& box);
    void meet_menu(HWND window);
    void go_on(OpenForm& form);
    bool is_pictured(OpenForm& form) const;
    void take_next_step(OpenForm& form);
    void note_closing(HWND window);

    ScriptedUser& user_;
    HWND eye_; ///< an unseen window that is told when to look
    HHOOK hook_;
    std::list<OpenForm> open_; ///< the last one is in front
    Json windows_ = Json::array();
    Text pictures_;               ///< where pictures go; empty where none are kept
    std::size_t page_record_ = 0; ///< the page's place among the windows
    MenuChoice choice_;
    HWND met_menu_ = nullptr; ///< a menu that has got its keys, which may still be on their way
    std::vector<Text> menu_;
};

} // namespace ornavel::rehearsal
