#pragma once

#include "programs/mass_mailer/draft.h"
#include "programs/mass_mailer/people.h"
#include "settings/store.h"

namespace ornavel::mass_mailer {

/// What a careful sender wants to know before the first message leaves: a sentence each.
std::vector<Text> warnings(const settings::Store& settings);

/// The same about fields for which somebody has no value.
std::vector<Text> empty_fields(const Table& table, const People& people, const Draft& subject,
                               const Draft& page);

} // namespace ornavel::mass_mailer
