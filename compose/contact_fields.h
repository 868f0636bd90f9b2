#pragma once

#include "base/text.h"

namespace ornavel::compose {

// The fields that a contact fills while the setting "Marketing" is "Enterprise".
inline constexpr TextView contact_name_field = u"[#ContactName#]";
inline constexpr TextView contact_company_field = u"[#ContactCompanyName#]";
inline constexpr TextView contact_folder_field = u"[#ContactFolder#]";
inline constexpr TextView contact_id_field = u"[#ContactID#]";
inline constexpr TextView contact_folder_id_field = u"[#ContactFolderID#]";

inline constexpr TextView contact_fields[] = {contact_name_field, contact_company_field, contact_folder_field,
                                              contact_id_field, contact_folder_id_field};

} // namespace ornavel::compose
