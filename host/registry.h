#pragma once

#include "host/view.h"

namespace ornavel::host {

/// The registry through the management provider, which the add-in uses for values that belong to the mail
/// client: the user's part (HKEY_CURRENT_USER), and the classes (HKEY_CLASSES_ROOT).
class RegistryProvider : public ViewOf<u"StdRegProv"> {
public:
    using ViewOf::ViewOf;
    /// The provider of this computer. Throws Error when there is none.
    static RegistryProvider of(Objects& objects, TextView computer);

    /// A value that is missing reads as an empty text.
    Text user_string(TextView key, TextView value_name) const;
    void set_user_string(TextView key, TextView value_name, TextView value) const;
    /// A value that is missing reads as 0.
    std::int32_t user_number(TextView key, TextView value_name) const;
    void set_user_number(TextView key, TextView value_name, std::int32_t value) const;
    void delete_class_key(TextView key) const;
};

} // namespace ornavel::host
