#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// The room that the dialog gives to a page, in twips.
inline constexpr int page_width = 5670, page_height = 5310;

/// The add-in's page as the dialog around it sees it.
class HostedPage {
public:
    virtual ~HostedPage() = default;
    /// Throws UnusableStep for a step that no user could take.
    virtual void take(const Step& step) = 0;
    virtual bool is_dirty() = 0;
    virtual void apply() = 0;
};

/// The mail client's Options dialog: its Apply button is dead until the page tells of a change, and then asks
/// the page whether it has anything to write.
class OptionsDialog {
public:
    void status_changed() { told_ = true; }
    /// Does what the user does with the page and the dialog's buttons.
    void play(HostedPage& page, const std::vector<PageStep>& steps);

private:
    void apply(HostedPage& page);

    bool told_ = false;
};

} // namespace ornavel::rehearsal
