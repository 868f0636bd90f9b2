#pragma once

#include "forms/form.h"

namespace ornavel::forms {

/// A step that no user could take: on a control that is hidden, disabled or unknown, or on a closed form.
class UnusableStep : public Failure {
public:
    using Failure::Failure;
};

/// A user in front of a form. Each step changes the control as the user's hand would and then runs its
/// handlers. Throws UnusableStep where a user could not do it, and leaves the control as it was.
class FormUser {
public:
    explicit FormUser(Form& form) : form_(form) {}

    /// A click on a check box turns its tick round.
    void click(TextView control);
    void double_click(TextView control);
    /// Opens the list of a combo box.
    void drop_down(TextView control);
    /// In a combo box or a list box, chooses the entry that reads so; where there is none, and in a text box,
    /// types the text.
    void set_text(TextView control, TextView text);
    /// Chooses an entry of a combo box or a list box; counts from 0.
    void select(TextView control, int index);
    /// A tick that changes nothing is no step.
    void tick(TextView control, bool ticked);
    /// Outer size and corner of the form's window, in twips.
    void resize(int width, int height);
    void move(int left, int top);
    /// The close box of the window's frame.
    void close();

private:
    Control& reach(TextView control);
    Control& reach(TextView control, ControlKind kind);
    void require_open() const;
    void choose(Control& control, TextView text);

    Form& form_;
};

} // namespace ornavel::forms
