#include "compose/usage_log.h"

#include "base/errors.h"
#include "host/ado.h"

#include <utility>

namespace ornavel::compose {
namespace {

using namespace settings;

// The flag of bulk mail, as a row writes it.
constexpr TextView single_message = u"0", bulk_mail = u"1";

/// A field without "|" is its own value; what follows a second "|" doesn't count.
Text value_of(const std::vector<Text>& fields, std::size_t index) {
    if (index >= fields.size()) return {};
    const auto parts = split(fields[index], u"|");
    return parts.size() > 1 ? parts[1] : parts[0];
}

/// A connection string may hold "|" itself.
Text whole_value_of(const std::vector<Text>& fields, std::size_t index) {
    if (index >= fields.size()) return {};
    return fields[index].substr(fields[index].find(u'|') + 1);
}

Text statement(const UsageLog& log, const UsageRow& row, const Text& address, TextView bulk) {
    return u"insert into " + log.table +
           u" (Emailaddress, [date], template, bulkmail, program_used, sender) values ('" + address +
           u"', '" + row.moment + u"', '" + row.template_name + u"', " + Text(bulk) + u", 'Ornavel', '" +
           row.sender + u"');";
}

/// Closes the connection whatever happens to the rows; only close() tells whether that failed.
class OpenConnection {
public:
    OpenConnection(host::Objects& objects, const Text& connection_string)
        : connection_(host::Connection::create(objects)) {
        connection_.open(connection_string);
    }
    ~OpenConnection() {
        attempt([&] { close(); });
    }
    OpenConnection(const OpenConnection&) = delete;
    OpenConnection& operator=(const OpenConnection&) = delete;
    void execute(const Text& text) const { connection_.execute(text); }
    void close() {
        if (std::exchange(open_, false)) connection_.close();
    }

private:
    host::Connection connection_;
    bool open_ = true;
};

} // namespace

UsageLog Get_Marketing_Info(const Store& settings) {
    UsageLog log;
    const Text marketing = read(settings, admin::Marketing);
    if (marketing.empty()) return log;
    const auto fields = split(marketing, u"#");
    if (value_of(fields, 0) == u"ON")
        log = {true, whole_value_of(fields, 1), whole_value_of(fields, 2), value_of(fields, 3), {}};
    log.stored_procedure = read(settings, admin::StoredProcName);
    return log;
}

void write_usage(const UsageLog& log, const UsageRow& row, const host::Recipients& recipients,
                 host::Objects& objects) {
    OpenConnection connection(objects, log.connection_string);
    const int count = recipients.count();
    const TextView bulk = count == 1 ? single_message : bulk_mail;
    for (int i = 1; i <= count; ++i)
        connection.execute(statement(log, row, recipients.item(i).address(), bulk));
    connection.close();
}

void write_bulk_usage(const UsageLog& log, const UsageRow& row, const Text& address, host::Objects& objects) {
    OpenConnection connection(objects, log.connection_string);
    connection.execute(statement(log, row, address, bulk_mail));
    connection.close();
}

Text sender_of(const host::Application& application) {
    const host::CurrentUser user = application.mapi().current_user();
    const Text address = user.address();
    return contains(address, u"@") ? address : user.name();
}

} // namespace ornavel::compose
