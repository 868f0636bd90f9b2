#pragma once

#include "forms/form.h"

namespace ornavel::forms {

/// Unloads a form at the end of a scope, however that is left.
class Unloading {
public:
    explicit Unloading(Form& form) : form_(form) {}
    ~Unloading() {
        attempt([this] { form_.unload(); });
    }
    Unloading(const Unloading&) = delete;
    Unloading& operator=(const Unloading&) = delete;

private:
    Form& form_;
};

} // namespace ornavel::forms
