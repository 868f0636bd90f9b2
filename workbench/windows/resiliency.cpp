#include "workbench/windows/parts.h"
#include "workbench/windows/registry_look.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

using State = Diagnosis::State;

constexpr TextView add_in = u"Ornavel.Connect";
constexpr TextView versions[] = {u"9.0", u"10.0", u"11.0", u"12.0", u"14.0", u"15.0", u"16.0"};

/// A list that the mail client keeps about add-ins, and what it means to stand on it.
struct List {
    TextView key, what;
    State state;
    TextView seen, advice;
};

constexpr List lists[] = {
    {u"DisabledItems", u"Outlook's disabled items", State::broken, u"has disabled the add-in",
     u"In Outlook: Help, About, Disabled Items, or from 2010 on File, Options, Add-ins, Manage Disabled "
     u"Items; "
     u"choose Ornavel and Enable"},
    {u"CrashingAddinList", u"Outlook's crashing add-ins", State::broken,
     u"holds the add-in for the cause of a crash, and may not load it",
     u"In Outlook: File, Options, Add-ins, Manage Disabled Items; choose Ornavel and Enable"},
    {u"StartupItems", u"Outlook's last start", State::look, u"is loading the add-in, or ended while it did",
     u"Where Outlook is not just starting: start it, and answer No when it asks whether to disable Ornavel"},
    {u"NotificationReminderAddinData", u"Outlook's slow add-ins", State::look,
     u"has told the user that the add-in is slow, and may disable it",
     u"In Outlook: File, Info, Slow and Disabled COM Add-ins; choose Always enable this add-in"},
    {u"DoNotDisableAddinList", u"Outlook's add-ins to keep", State::fine,
     u"never disables the add-in: the user wants it so", u""},
};

Text resiliency(TextView above, TextView version) {
    return Text(above) + u"\\Microsoft\\Office\\" + Text(version) + u"\\Outlook\\Resiliency";
}

/// Lists name an add-in by its class or by its file, as a value's name or within its content.
bool names_the_add_in(const Entry& entry) {
    return contains(lower_case(entry.name), u"ornavel") || contains(lower_case(entry.content), u"ornavel");
}

bool stands_on(const List& list, TextView version) {
    const Text key = resiliency(u"Software", version) + u"\\" + Text(list.key);
    return std::ranges::any_of(entries_in(HKEY_CURRENT_USER, key), names_the_add_in);
}

void look_at(const List& list, std::vector<Diagnosis>& all) {
    const auto before = all.size();
    for (const TextView version : versions)
        if (stands_on(list, version))
            all.push_back({list.state, Text(list.what), u"Outlook " + Text(version) + u" " + Text(list.seen),
                           Text(list.advice)});
    if (all.size() == before && list.state != State::fine)
        all.push_back({State::fine, Text(list.what), u"the add-in is not among them", {}});
}

/// A policy's word on the add-in, by its value in the list of managed add-ins.
void look_at_policy(TextView version, std::vector<Diagnosis>& all) {
    constexpr TextView what = u"policy";
    const Text key = resiliency(u"Software\\Policies", version), outlook = u"Outlook " + Text(version);
    const auto managed = text_in(HKEY_CURRENT_USER, key + u"\\AddinList", add_in);
    if (managed == u"0")
        all.push_back({State::broken, Text(what), outlook + u" is told never to load the add-in",
                       u"Set Ornavel.Connect to 1 in the policy List of managed add-ins"});
    else if (managed == u"1")
        all.push_back({State::fine, Text(what), outlook + u" is told to keep the add-in enabled", {}});
    else if (!managed && number_in(HKEY_CURRENT_USER, key, u"RestrictToList") == DWORD{1})
        all.push_back({State::broken, Text(what), outlook + u" loads only add-ins that a policy lists",
                       u"Add Ornavel.Connect with the value 1 to the policy List of managed add-ins"});
}

} // namespace

std::vector<Diagnosis> look_at_resiliency() {
    std::vector<Diagnosis> all;
    for (const List& list : lists) look_at(list, all);
    for (const TextView version : versions) look_at_policy(version, all);
    return all;
}

} // namespace ornavel::workbench
