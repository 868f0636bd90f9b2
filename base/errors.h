#pragma once

#include "base/text.h"

#include <exception>

namespace ornavel {

/// What went wrong, in words for the error log.
class Failure : public std::exception {
public:
    explicit Failure(TextView description);
    const Text& description() const { return description_; }
    const char* what() const noexcept override { return narrow_.c_str(); }

protected:
    /// details: for developers, in front of the description; may be empty.
    Failure(TextView description, std::string details);

private:
    Text description_;
    std::string narrow_;
};

/// A text would have grown beyond largest_text.
class TextTooLarge : public Failure {
public:
    TextTooLarge() : Failure(u"The text grew beyond the largest size") {}
};

/// The description of the exception being handled, empty where there is no memory for it; to be called inside
/// a catch block only.
Text current_description() noexcept;

/// How the error log names a group of steps: its routine or label, and the name of its error.
struct TrapName {
    TextView sub_function;
    TextView section;
    TextView place{}; ///< which of several that share a name; not logged
};

/// Takes what a trap caught. Never throws.
class ErrorSink {
public:
    virtual ~ErrorSink() = default;
    virtual void take(TextView description, TrapName trap) noexcept = 0;
};

/// Runs the body; what it throws goes to the sink. Returns whether the body got through. Lets nothing out.
template <class Body>
bool trap(ErrorSink& errors, TrapName name, Body&& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        errors.take(current_description(), name);
        return false;
    }
}

/// Runs the body and ignores what it throws: the silent twin of trap. Returns whether the body got through.
template <class Body>
bool attempt(Body&& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace ornavel
