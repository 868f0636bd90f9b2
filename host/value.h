#pragma once

#include "base/errors.h"
#include "base/text.h"

#include <cstdint>
#include <memory>
#include <variant>

namespace ornavel::host {

class Object;
using ObjectPtr = std::shared_ptr<Object>;

/// The value of a property that was never set; also what a call without a result gives back.
using Empty = std::monostate;

/// An optional argument that is left out. It is copied by a constructor of its own, because a variant of
/// which every alternative is trivial or a standard text or pointer counts as never without a value in the
/// compiler's library: copying a text for which there is no memory then destroys what was never made.
struct Omitted {
    Omitted() = default;
    Omitted(const Omitted&) noexcept {}
    Omitted& operator=(const Omitted&) = default;
    bool operator==(const Omitted&) const = default;
};

/// A moment as automation counts it: days since 30 December 1899, the time of day as the fraction.
struct Date {
    double days = 0;
    bool operator==(const Date&) const = default;
};

/// As an argument: where the callee leaves a value.
struct Result;

/// What crosses the seam. A null ObjectPtr is the host's "Nothing".
using Value = std::variant<Empty, bool, std::int32_t, double, Date, Text, ObjectPtr, Omitted, Result*>;

struct Result {
    Value value;
};

/// A member of a host object that fails, is missing, or gives back another type. Its description is the
/// host's own where there is one, and nothing else goes into logs; what() tells a developer more.
class Error : public Failure {
public:
    /// member: the object's class and the member, "MailItem.HTMLBody"; code: the HRESULT, 0 where there is
    /// none.
    explicit Error(TextView description, Text member = {}, std::int32_t code = 0);
    const Text& member() const { return member_; }
    std::int32_t code() const { return code_; }

private:
    Text member_;
    std::int32_t code_;
};

/// The conversions that late binding makes: an empty value is "", 0 and False; numbers and texts convert
/// where the text is a number. Anything else throws Error. A text that is handed over is not copied.
Text as_text(Value value);
std::int32_t as_number(const Value& value);
bool as_flag(const Value& value);

/// Throws Error unless the value is an object; "Nothing" throws as well.
ObjectPtr as_object(const Value& value);

/// The object, or null when the value is "Nothing" or empty. Throws Error for any other type.
ObjectPtr as_object_or_nothing(const Value& value);

} // namespace ornavel::host
