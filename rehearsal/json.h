#pragma once

#include "base/clock.h"
#include "base/text.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <stdexcept>

/// What prints JSON takes seconds to compile; it is compiled once, in json.cpp.
extern template class nlohmann::detail::serializer<nlohmann::ordered_json>;

namespace ornavel::rehearsal {

/// Members keep the order in which they were written.
using Json = nlohmann::ordered_json;

/// A scenario or an argument that can't be played. The message is one line that names the offending member.
class Unusable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads JSON text. Invalid text, and a member given twice, are Unusable; the source names the text in the
/// message.
Json parse_json(const std::string& text, const std::string& source);

/// Indented JSON text with a line end. Never throws for ill-formed texts inside.
std::string to_json_text(const Json& json);

/// A lone surrogate becomes U+FFFD.
Json to_json(TextView text);

std::string encode_base64(std::string_view bytes);
/// Nothing unless the text is whole, padded base64.
std::optional<std::string> decode_base64(std::string_view text);

/// "2003-11-20T14:05:09"; nothing unless it is a time of the calendar.
std::optional<LocalTime> parse_time(std::string_view text);

} // namespace ornavel::rehearsal
