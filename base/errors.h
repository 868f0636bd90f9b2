#pragma once

#include "base/text.h"

#include <exception>
#include <functional>

namespace ornavel {

/// What went wrong, in words for the error log.
class Failure : public std::exception {
public:
    explicit Failure(TextView description);
    const Text& description() const { return description_; }
    const char* what() const noexcept override { return narrow_.c_str(); }

private:
    Text description_;
    std::string narrow_;
};

/// A text would have grown beyond largest_text.
class TextTooLarge : public Failure {
public:
    TextTooLarge() : Failure(u"The text grew beyond the largest size") {}
};

/// The description of the exception being handled; to be called inside a catch block only.
Text current_description() noexcept;

/// Where a group of steps stands, as the error log names it: the routine or its label, and the error's name.
struct Place {
    TextView sub_function;
    TextView section;
};

/// Takes what a trap caught. Never throws.
class ErrorSink {
public:
    virtual ~ErrorSink() = default;
    virtual void Write_to_error_file(TextView description, TextView sub_function,
                                     TextView section) noexcept = 0;
};

/// Runs the body; what it throws goes to the sink. Returns whether the body got through. Lets nothing out.
bool trap(ErrorSink& errors, Place place, const std::function<void()>& body) noexcept;

/// Runs the body and ignores what it throws: the silent twin of trap. Returns whether the body got through.
bool attempt(const std::function<void()>& body) noexcept;

} // namespace ornavel
