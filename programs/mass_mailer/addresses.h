#pragma once

#include "base/text.h"

namespace ornavel::mass_mailer {

/// The address in a cell, trimmed: what stands in "<" and ">" at its end, where a name stands in front.
Text address_in(TextView cell);

/// Why the mail client can't be given this as one address; empty where it can.
TextView why_no_address(TextView address);

/// What all spellings of one address have in common: no capitals, no blanks.
Text address_key(TextView address);

} // namespace ornavel::mass_mailer
