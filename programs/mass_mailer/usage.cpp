#include "programs/mass_mailer/usage.h"

#include "compose/dates.h"

namespace ornavel::mass_mailer {

void Usage::note(const Text& address) noexcept {
    if (!log_.enabled || log_.connection_string.empty()) return;
    trap(needs_.errors, {u"MassMailer- error in the usage log", u"eMarketing_Err"}, [&] {
        if (sender_.empty()) sender_ = compose::sender_of(needs_.mail_client.application());
        const compose::UsageRow row{compose::log_moment(needs_.clock.now()),
                                    read(needs_.settings, settings::user::template_), sender_};
        compose::write_bulk_usage(log_, row, address, needs_.objects);
    });
}

} // namespace ornavel::mass_mailer
