#pragma once

#include "base/errors.h"

namespace ornavel {

/// What the step was refused with; empty where it was not.
template <class Step>
Text refusal_of(Step&& step) {
    try {
        step();
    } catch (const Failure& failure) {
        return failure.description();
    }
    return {};
}

} // namespace ornavel
