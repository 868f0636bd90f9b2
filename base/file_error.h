#pragma once

#include "base/errors.h"

namespace ornavel {

/// A place in a file; lines and columns count from 1, columns in UTF-16 units or, in files of bytes, bytes.
struct Place {
    std::size_t line = 1;
    std::size_t column = 1;
    bool operator==(const Place&) const = default;
};

/// A file that can't be understood, and where.
class FileError : public Failure {
public:
    FileError(TextView description, Place at) : Failure(description), at_(at) {}
    Place at() const { return at_; }

private:
    Place at_;
};

/// The places of a text, asked for in ascending order: each question goes on where the last one ended.
class Places {
public:
    explicit Places(TextView text) : text_(text) {}
    /// The place of a unit. A position behind the end is the end's.
    Place of(std::size_t position);

private:
    TextView text_;
    std::size_t reached_ = 0, line_start_ = 0, line_ = 1;
};

} // namespace ornavel
