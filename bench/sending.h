#pragma once

namespace ornavel::bench {

/// The rows of Send to Many: reading and checking a list, and what a long run keeps in memory.
void print_sending();

} // namespace ornavel::bench
