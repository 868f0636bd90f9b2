#pragma once

#include "rehearsal/windows/dispatch_server.h"

namespace ornavel::rehearsal {

inline constexpr IID IID_ServedObject{
    0x6A1C46B0, 0x2D6B, 0x4E51, {0x9C, 0x35, 0x51, 0x0A, 0xE7, 0x5D, 0x0B, 0x1F}};

/// How the rehearsal knows its own objects again when the add-in hands them back.
struct ServedObject : IUnknown {
    virtual host::ObjectPtr object() const = 0;
};

/// A value on its way to the add-in.
win32::Variant served_variant(const host::Value& value, const std::shared_ptr<Subscriptions>& subscriptions);

/// The add-in's arguments in their order, with the rehearsal's own objects as they were. What is passed as a
/// reference to a value is the place of a result.
class ServedArguments {
public:
    explicit ServedArguments(DISPPARAMS& parameters);
    const host::Arguments& values() const { return values_; }
    void give_back_results(const std::shared_ptr<Subscriptions>& subscriptions);

private:
    struct Argument {
        VARIANT* variant;
        std::unique_ptr<host::Result> result;
    };
    host::Arguments values_;
    std::vector<Argument> places_;
};

} // namespace ornavel::rehearsal
