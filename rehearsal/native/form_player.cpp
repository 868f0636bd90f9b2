#include "rehearsal/native/form_player.h"

#include "base/encoding.h"
#include "rehearsal/form_record.h"
#include "rehearsal/turn.h"

namespace ornavel::rehearsal {

void take_one_step(const Step& step, forms::Form& form) {
    try {
        const AddInsTurn turn;
        take_step(step, forms::FormUser(form));
    } catch (const forms::UnusableStep&) {
        throw;
    } catch (const Unusable&) {
        throw;
    } catch (...) {
    }
}

void take_steps(ScriptedUser& user, const UserEntry& entry, forms::Form& form) {
    try {
        refuse_answer(entry);
        for (const auto& step : entry.steps) take_one_step(step, form);
    } catch (const forms::UnusableStep& error) {
        user.complain(entry, to_utf8(error.description()));
    }
}

} // namespace ornavel::rehearsal
