#pragma once

#include "base/errors.h"
#include "forms/control.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace ornavel::forms {

/// What a user does to a control. drop_down comes before an entry of a combo box is chosen.
enum class Event { click, double_click, change, drop_down };

/// A window as its code sees it: named controls, in the order of the Tab key, and the form's own properties.
/// Windows::show_modal shows it; FormUser acts on it as a user does.
class Form {
public:
    using Handler = std::function<void()>;

    /// The form's own properties are a control of the kind form.
    Form(Control properties, std::vector<Control> controls);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    Control properties;
    bool topmost = false;             ///< stays above all other windows
    bool sizable = false;             ///< the user may resize it by its frame
    bool centred = true;              ///< appears in the middle of the screen rather than at its place
    bool keeps_size = false;          ///< its outer size stays, however thick the system's frame is
    Bounds screen{0, 0, 12000, 9000}; ///< the main screen, once the form has appeared on one
    Size least_room;                  ///< the user can't make the room for the controls smaller

    /// The room for the controls, within title bar and borders, in twips.
    Size room() const { return shown_room_.value_or(room_of(properties.place)); }
    /// Takes the size that has this room within the usual frame.
    void make_room(Size room);
    /// What the form's place is at least as large as.
    Size least_size() const { return {least_room.width + frame().width, least_room.height + frame().height}; }
    /// Stands at the place, or at one that is large enough for the least room, and runs on_resize.
    void take_place(const Bounds& place);
    /// Title bar and borders together, as the system has them here. A form that the user can't size keeps its
    /// room, unless it keeps its size; any other keeps its place.
    void take_frame(Size frame);
    /// Shows itself in another room than that of its place: the window is maximised. Runs on_resize.
    void take_room(Size room);

    const Text& name() const { return properties.name; }
    std::vector<Control>& controls() { return controls_; }
    const std::vector<Control>& controls() const { return controls_; }
    /// Throws Failure when the form has no control of this name. Names compare without case.
    Control& operator[](TextView control);
    Control* find(TextView control);
    const Control* find(TextView control) const;

    /// What the user's own action on a control runs; code that changes a control runs nothing.
    void on(TextView control, Event event, Handler handler);
    Handler on_load, on_unload, on_resize;
    /// Asked when the user closes the form by its frame; without it every form may be closed so.
    std::function<bool()> may_close;
    /// Shows at once what code changed, where a window shows the form: else that waits for the end of the
    /// user's step.
    void show_changes() const {
        if (shows_changes) shows_changes();
    }
    std::function<void()> shows_changes; ///< the form's window; empty without one
    /// The control that gets the keyboard next; the form's window empties it.
    Text next_focus;

    /// Runs on_load. A form that is loaded stays as it is.
    void load();
    /// Runs on_unload, once; the form's window closes. Does nothing to a form that is not loaded.
    void unload();
    bool is_loaded() const { return loaded_; }

    /// Runs the handler of the user's action, if there is one.
    void fire(TextView control, Event event);

private:
    Size frame() const;
    Size room_of(const Bounds& place) const;
    Bounds large_enough(Bounds place) const;

    std::optional<Size> frame_, shown_room_;
    std::vector<Control> controls_;
    std::map<std::pair<Text, Event>, Handler> handlers_;
    bool loaded_ = false;
};

} // namespace ornavel::forms
