#include "settings/catalogue.h"

namespace ornavel::settings {
namespace {

#define ROW(section, id, name, fallback) section::id,
#define TEXT ROW
#define SWITCH ROW
#define TICK ROW
#define NUMBER ROW
#define PATH ROW
constexpr Key every_key[] = {
#include "settings/catalogue.inc"
};

} // namespace

std::span<const Key> catalogue() { return every_key; }

} // namespace ornavel::settings
