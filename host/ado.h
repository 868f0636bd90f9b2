#pragma once

#include "host/view.h"

namespace ornavel::host {

/// A connection to a database.
class Connection : public ViewOf<u"Connection"> {
public:
    using ViewOf::ViewOf;
    static Connection create(Objects& objects) { return Connection(objects.create(u"ADODB.Connection")); }
    void open(TextView connection_string) const { call({u"Open"}, {Text(connection_string)}); }
    void execute(TextView statement) const { call({u"Execute"}, {Text(statement)}); }
    void close() const { call({u"Close"}); }
};

} // namespace ornavel::host
