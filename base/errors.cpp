#include "base/errors.h"

#include "base/encoding.h"

namespace ornavel {

Failure::Failure(TextView description) : description_(description), narrow_(to_utf8(description)) {}

Text current_description() noexcept {
    try {
        throw;
    } catch (const Failure& failure) {
        return failure.description();
    } catch (const std::exception& exception) {
        return from_utf8(exception.what());
    } catch (...) {
        return u"Unknown error";
    }
}

bool trap(ErrorSink& errors, Place place, const std::function<void()>& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        errors.Write_to_error_file(current_description(), place.sub_function, place.section);
        return false;
    }
}

bool attempt(const std::function<void()>& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace ornavel
