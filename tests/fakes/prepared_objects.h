#pragma once

#include "host/object.h"

#include <map>

namespace ornavel {

/// Automation servers in memory: what isn't prepared can't be created.
class PreparedObjects final : public host::Objects {
public:
    std::map<Text, host::ObjectPtr> prepared;

    host::ObjectPtr create(TextView prog_id) override { return look_up(prog_id); }
    host::ObjectPtr get(TextView moniker) override { return look_up(moniker); }

private:
    host::ObjectPtr look_up(TextView name) const {
        const auto found = prepared.find(Text(name));
        if (found == prepared.end()) throw host::Error(u"ActiveX component can't create object");
        return found->second;
    }
};

} // namespace ornavel
