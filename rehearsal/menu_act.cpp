#include "rehearsal/menu_act.h"

#include "base/encoding.h"
#include "forms/frmSysTray.h"

namespace ornavel::rehearsal {

int icon_message(const Act& act) {
    constexpr int right_button_released = 517;
    return act.kind == Act::Kind::tray_message ? act.number : right_button_released;
}

MenuChoice menu_choice(const Act& act) {
    MenuChoice choice;
    if (act.kind == Act::Kind::tray) choice.caption = act.text;
    if (act.kind == Act::Kind::tray_entry) choice.caption = forms::tray_caption(act.text).value_or(act.text);
    return choice;
}

void check_choice(ScriptedUser& user, const Act& act, const MenuChoice& made) {
    if (!made.caption || made.was_there) return;
    UserEntry at;
    at.path = act.path;
    user.complain(at, "the menu has no entry " + to_utf8(act.text));
}

} // namespace ornavel::rehearsal
