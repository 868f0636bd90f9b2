#include "tests/settings/store_contract.h"

namespace ornavel::settings {

struct InMemory {
    Store& store() { return memory; }
    MemoryStore memory;
};

INSTANTIATE_TYPED_TEST_SUITE_P(MemoryStore, StoreContract, InMemory);

} // namespace ornavel::settings
