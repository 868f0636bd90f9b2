#pragma once

namespace ornavel::connect {

/// What a gate answers: the next gate is asked; the gate is switched off and leaves no record; or the send
/// leaves with cancel as it stands.
enum class Verdict { next, off, leave };

} // namespace ornavel::connect
