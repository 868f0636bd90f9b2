#pragma once

#include "forms/form_user.h"
#include "win32/control_window.h"
#include "win32/handle.h"
#include "win32/size_grip.h"

#include <optional>

namespace ornavel::win32 {

/// The window of a loaded form. What the user does in it becomes a step of a FormUser; what the form's code
/// changed then shows in the window. The form outlives it.
class FormWindow {
public:
    explicit FormWindow(forms::Form& form);
    ~FormWindow();
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    /// Makes the window, still hidden, in front of its owner. Throws Failure when the system has none to
    /// give.
    void open(HWND owner);
    /// Makes the window within another one of the same thread, which is somebody else's: it has no frame, its
    /// place is told by move, and the keys that a dialog has for itself are left to those around it. The
    /// procedure is told when the user turns to it with the mouse.
    void open_within(HWND parent, const RECT& place, std::function<void()> on_entered);
    void move(const RECT& place);
    /// Of a window within another one. Offers a key; whether it was used. The Tab key is not used where it
    /// leads out, nor an access key that is none of the form's.
    bool takes_key(MSG& message);
    /// Offers an access key that was pressed elsewhere in the other window; whether it was used.
    bool takes_key_from_outside(MSG message);
    /// Gives the keyboard to the first control, or to the last.
    void take_keyboard(bool at_the_end);

    HWND window() const { return window_; }
    /// Shows the window and returns when the form is unloaded.
    void run();

private:
    static constexpr int first_id = 100; // above the numbers that dialogs keep for themselves

    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM word, LPARAM pointer);
    bool handle(UINT message, WPARAM word, LPARAM pointer);
    bool translate(const MSG& message);
    bool translate_in_text_box(const ControlWindow& box, const MSG& message);
    bool translate_in_page(const ControlWindow& page, const MSG& message);
    bool has_access_key(WPARAM letter) const;

    void create_dialog(DWORD style, DWORD extended_style, HWND owner);
    void fill();
    void find_place();
    void create_controls();
    void refresh();
    void show_frame();
    void fill_room();
    void show_default_button();
    void show_focus();
    HWND first_focus() const;

    void on_command(int id, int notification);
    void on_notification(const ControlWindow& control, int notification);
    void on_escape();
    void on_moved();
    void tell_least_size(MINMAXINFO& limits) const;
    void step(const std::function<void(forms::FormUser)>& act);

    forms::Form& form_;
    Scale scale_ = Scale::of_screen();
    Owned<&DeleteObject> font_;
    HWND window_ = nullptr;
    bool is_within_ = false; ///< another window
    std::function<void()> on_entered_;
    std::optional<ToolTips> tips_;
    std::optional<SizeGrip> grip_;
    std::vector<ControlWindow> controls_; ///< in the order of the form's own
    Text caption_;                        ///< this and the next two: as the window shows them
    forms::Bounds place_;
    bool topmost_ = false;
    int default_id_ = 0;     ///< of the button that Enter presses
    bool refreshing_ = true; ///< what the windows tell now comes from the code, not from the user
};

/// Shows a loaded form in front of the window that is active in this thread. The user can't reach any other
/// window of the thread until the form is unloaded. Throws Failure where the system has no window to give;
/// the form is unloaded all the same.
void show_form_modally(forms::Form& form);

} // namespace ornavel::win32
