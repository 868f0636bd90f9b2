#pragma once

#include "base/text.h"

#include <optional>
#include <vector>

namespace ornavel::forms {

enum class ControlKind {
    form,
    command_button,
    check_box,
    combo_box,
    list_box,
    text_box,
    label,
    frame,
    image,
    menu,
    web_browser,
    progress_bar,
    tab_strip,
    toolbar,
    list_view
};

/// A picture of the system's own, which says what kind of message it stands beside.
enum class Icon { none, information, question, warning };

/// Where something stands, in twips. A control counts from the inner corner of its form (or of its frame), a
/// form from the corner of the screen, title bar and borders included.
struct Bounds {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Bounds&) const = default;
};

struct Size {
    int width = 0, height = 0;
    bool operator==(const Size&) const = default;
};

/// A tab of a tab strip, a button of a toolbar, a column header of a list view.
struct Part {
    Text tag{}, caption{}, tool_tip{}, text{};
    bool operator==(const Part&) const = default;
};

/// What a user sees of a form's control. Code may change any member; that fires no handler.
struct Control {
    ControlKind kind = ControlKind::label;
    Text name{};
    Bounds place{};
    Text tag{};
    Text caption{};
    Text tool_tip{};
    Text text{};                ///< of a text box or a combo box
    std::vector<Text> items{};  ///< of a combo box or a list box
    int index = -1;             ///< the chosen entry of either; -1 when there is none
    bool fixed_entries = false; ///< a combo box into which nothing can be typed
    int value = 0;              ///< of a progress bar, per cent
    bool ticked = false;        ///< of a check box
    Text page{};                ///< the file or address that a web browser shows
    bool follows_links = false; ///< of a web browser: else a page stays where it is, and on this machine
    int visits = 0;             ///< how often the page was shown; the same page may have new contents
    Text picture{};             ///< the file that an image shows
    Icon icon = Icon::none;     ///< what an image shows that has no file
    std::vector<Part> parts{};  ///< of a tab strip, a toolbar or a list view
    Text frame{};               ///< the name of the frame that it stands in; empty on the form itself
    bool visible = true;
    bool enabled = true;
    bool locked = false;        ///< a text box that the user reads but can't change
    bool several_lines = false; ///< a text box that wraps and scrolls
    bool is_default = false;    ///< the button that the Enter key presses
    bool is_cancel = false;     ///< the button that the Escape key presses

    bool operator==(const Control&) const = default;

    /// Makes a combo box show this text: the first entry that reads so, else the text alone with index -1.
    void choose(TextView wanted);
    /// Makes a combo box show the entry at this index, and a list box mark it; an index that it does not have
    /// shows an empty text, or marks none.
    void select(int wanted);
    /// Makes a web browser show a file or address, anew when it shows it already.
    void visit(TextView address);
};

/// Controls of the other kinds have no caption.
bool has_caption(ControlKind kind);

/// The caption as a reader sees it. In that of a control a "&" marks the access key, and two stand for one;
/// in that of a form it is a sign like any other.
Text readable_caption(const Control& control);

/// The letter that reaches the control together with the Alt key, in lower case; nothing where it has none.
std::optional<char16_t> access_key_of(const Control& control);

/// The text as a caption, with the first such letter as its access key, where it has one.
Text with_access_key(TextView text, char16_t letter);

} // namespace ornavel::forms
