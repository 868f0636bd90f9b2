#include "settings/descriptions.h"

namespace ornavel::settings {
namespace {

// Each is written out: a macro handed on to another would take the comma of NOT_YET for one of its own.
#define NOT_YET(parts) parts, true
#define CHOICE_KEY(section, id, name, fallback, allowed, group, owner, readers, writers, meaning)            \
    {section::id, Group::group, Owner::owner, u"" allowed, {u"" readers}, u"" writers, u"" meaning},
#define TEXT_KEY(section, id, name, fallback, group, owner, readers, writers, meaning)                       \
    {section::id, Group::group, Owner::owner, {}, {u"" readers}, u"" writers, u"" meaning},
#define SWITCH_KEY(section, id, name, fallback, group, owner, readers, writers, meaning)                     \
    {section::id, Group::group, Owner::owner, u"True|False", {u"" readers}, u"" writers, u"" meaning},
#define TICK_KEY(section, id, name, fallback, group, owner, readers, writers, meaning)                       \
    {section::id, Group::group, Owner::owner, u"0|1", {u"" readers}, u"" writers, u"" meaning},
#define NUMBER_KEY TEXT_KEY
#define PATH_KEY TEXT_KEY
constexpr Description every_description[] = {
#include "settings/catalogue.inc"
};

constexpr TextView group_names[] = {
    u"lifecycle",        u"sending",         u"composing",           u"clean-up",
    u"signature fields", u"signature rules", u"dialogs and preview", u"errors and logs",
    u"usage log",        u"environment"};
constexpr TextView owner_names[] = {u"administrator", u"user", u"state"};

} // namespace

std::span<const Description> descriptions() { return every_description; }

TextView name_of(Group group) { return group_names[static_cast<std::size_t>(group)]; }
TextView name_of(Owner owner) { return owner_names[static_cast<std::size_t>(owner)]; }

} // namespace ornavel::settings
