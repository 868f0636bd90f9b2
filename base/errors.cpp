#include "base/errors.h"

#include "base/encoding.h"

#include <new>

namespace ornavel {

Failure::Failure(TextView description) : Failure(description, std::string()) {}

Failure::Failure(TextView description, std::string details)
    : description_(description), narrow_(std::move(details)) {
    narrow_ += (narrow_.empty() ? "" : ": ") + to_utf8(description);
}

Text current_description() noexcept {
    Text description;
    attempt([&] {
        try {
            throw;
        } catch (const Failure& failure) {
            description = failure.description();
        } catch (const std::bad_alloc&) {
            description = u"Out of memory";
        } catch (const std::exception& exception) {
            description = from_utf8(exception.what());
        } catch (...) {
            description = u"Unknown error";
        }
    });
    return description;
}

} // namespace ornavel
