#pragma once

#include "forms/form.h"
#include "win32/handle.h"
#include "win32/tool_tips.h"
#include "win32/twips.h"
#include "win32/web_browser.h"

#include <memory>
#include <optional>

namespace ornavel::win32 {

/// The window of one control: shows what the control says, and reads what the user changed. The window goes
/// with the form's window, and carries the control's name (see name_of).
class ControlWindow {
public:
    /// The property of a window that only its frame hides.
    static constexpr const wchar_t* in_hidden_frame = L"Ornavel in hidden frame";

    /// Makes the window, hidden and empty. A kind of control that has no window of its own makes none.
    ControlWindow(const forms::Control& control, HWND parent, int id, HFONT font);
    void release_name() const;
    /// Ends what stands in the window, before the window itself goes.
    void close() { browser_.reset(); }

    HWND window() const { return window_; }
    const Text& name() const { return shown_.name; }
    /// Null for other kinds of controls, and where the system has no browser.
    WebBrowser* browser() const { return browser_.get(); }

    /// Brings the window up to date with the control as it stands in the form.
    void show(const forms::Control& control, const forms::Control* frame, const Scale& scale, ToolTips& tips);

    /// What the user left in the window.
    Text text() const;
    bool is_ticked() const;
    int chosen_entry() const;

private:
    void show_text(const forms::Control& control);
    void show_list(const forms::Control& control);
    void show_entries(const forms::Control& control);
    void mark_entry(int index) const;
    int width_of_entries(const forms::Control& control) const;
    /// Whether it stood elsewhere before.
    bool show_place(const forms::Bounds& place, const Scale& scale);
    void show_state(bool visible, bool enabled);
    LRESULT send(UINT message, WPARAM word = 0, LPARAM pointer = 0) const;

    void make_browser(bool follows_links);
    void show_page(const forms::Control& control);
    void show_picture(const forms::Control& control);

    HWND window_ = nullptr;
    std::unique_ptr<WebBrowser> browser_; ///< of a web browser, where the system has one
    std::optional<Owned<&DeleteObject>> picture_;
    forms::Control shown_; ///< the control as the window shows it
    Text tip_for_place_;   ///< what the form's window shows there
    forms::Bounds place_;  ///< within the form, also for a control that stands in a frame
};

} // namespace ornavel::win32
