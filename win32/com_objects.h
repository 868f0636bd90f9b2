#pragma once

#include "host/object.h"

namespace ornavel::win32 {

/// The machine's COM classes and monikers.
class ComObjects final : public host::Objects {
public:
    host::ObjectPtr create(TextView prog_id) override;
    host::ObjectPtr get(TextView moniker) override;
};

} // namespace ornavel::win32
