#pragma once

#include "host/view.h"

namespace ornavel::host {

/// The registry of the user (HKEY_CURRENT_USER) through the management provider, which the add-in uses for
/// values that belong to the mail client.
class RegistryProvider : public ViewOf<u"StdRegProv"> {
public:
    using ViewOf::ViewOf;
    /// The provider of this computer. Throws Error when there is none.
    static RegistryProvider of(Objects& objects, TextView computer);

    /// A value that is missing reads as an empty text.
    Text user_string(TextView key, TextView value_name) const;
    void set_user_string(TextView key, TextView value_name, TextView value) const;
};

} // namespace ornavel::host
