#include "rehearsal/options_dialog.h"

#include <utility>

namespace ornavel::rehearsal {

void OptionsDialog::play(HostedPage& page, const std::vector<PageStep>& steps) {
    using Kind = PageStep::Kind;
    for (const PageStep& step : steps) {
        if (step.kind == Kind::on_the_page) page.take(step.step);
        if (step.kind == Kind::apply || step.kind == Kind::ok) apply(page);
    }
}

void OptionsDialog::apply(HostedPage& page) {
    if (std::exchange(told_, false) && page.is_dirty()) page.apply();
}

} // namespace ornavel::rehearsal
