#pragma once

#include "base/text.h"

#include <list>
#include <memory>
#include <vector>

namespace ornavel::rehearsal {

/// What the add-in holds of the mail client: every object handed out, and every subscription, until it is
/// dropped.
class References {
public:
    /// Held by whatever counts as a reference.
    class Token {
    public:
        Token(std::shared_ptr<References> references, Text name);
        ~Token();
        Token(const Token&) = delete;
        Token& operator=(const Token&) = delete;

    private:
        std::shared_ptr<References> references_;
        std::list<Text>::iterator place_;
    };

    std::size_t held() const { return names_.size(); }
    /// In the order in which they were handed out.
    std::vector<Text> names() const { return {names_.begin(), names_.end()}; }

private:
    std::list<Text> names_;
};

inline References::Token::Token(std::shared_ptr<References> references, Text name)
    : references_(std::move(references)),
      place_(references_->names_.insert(references_->names_.end(), std::move(name))) {}

inline References::Token::~Token() { references_->names_.erase(place_); }

} // namespace ornavel::rehearsal
