#pragma once

#include "base/clock.h"
#include "host/application.h"
#include "settings/store.h"

namespace ornavel::compose {

/// How composed messages are recorded in a database, as read at start-up.
struct UsageLog {
    bool enabled = false;
    Text connection_string;
    Text table;
    Text recipient_field;
    Text stored_procedure; ///< kept, and not used further
};

/// Reads the setting "Marketing": fields separated by "#", each a label, "|" and a value.
UsageLog Get_Marketing_Info(const settings::Store& settings);

/// What a row of the log says beside the recipient.
struct UsageRow {
    Text moment;
    Text template_name;
    Text sender;
};

/// Writes a row for the only recipient, or one for each of several. Values are inserted as they stand. Throws
/// host::Error; the connection is closed either way.
void write_usage(const UsageLog& log, const UsageRow& row, const host::Recipients& recipients,
                 host::Objects& objects);

/// Writes the row of one message of many, as write_usage does.
void write_bulk_usage(const UsageLog& log, const UsageRow& row, const Text& address, host::Objects& objects);

/// The current user's address when it holds "@", else the name.
Text sender_of(const host::Application& application);

} // namespace ornavel::compose
