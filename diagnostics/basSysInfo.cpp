#include "diagnostics/basSysInfo.h"

#include <algorithm>
#include <iterator>

namespace ornavel::diagnostics {
namespace {

struct Named {
    int number;
    TextView name;
};

constexpr Named platforms[] = {{0, u"Windows 32s "}, {1, u"Windows 95 "}, {2, u"Windows NT "}};

constexpr Named processors[] = {
    {386, u"Intel 386"},   {486, u"Intel 486"},         {586, u"Intel Pentium"},
    {4000, u"MIPS R4000"}, {21064, u"DEC Alpha 21064"},
};

template <std::size_t Size>
TextView name_of(const Named (&table)[Size], int number, TextView otherwise) {
    const auto found = std::ranges::find(table, number, &Named::number);
    return found == std::end(table) ? otherwise : found->name;
}

/// "###,###,###": groups of three digits from the right.
Text grouped(std::uint64_t number) {
    Text digits = to_text(static_cast<long long>(number));
    for (auto at = static_cast<std::ptrdiff_t>(digits.size()) - 3; at > 0; at -= 3)
        digits.insert(static_cast<std::size_t>(at), 1, u',');
    return digits;
}

} // namespace

Text operating_system_line(const OperatingSystem& system) {
    return Text(name_of(platforms, system.platform, u"")) + to_text(system.major) + u"." +
           to_text(system.minor) + u" (Build " + to_text(system.build) + u")";
}

Text processor_line(int processor_type) {
    return u"CPU: " + Text(name_of(processors, processor_type, u"(unknown)"));
}

Text kilobytes(std::uint64_t bytes) { return grouped(bytes / 1024) + u"K"; }

std::vector<Text> system_lines(const SystemInformation& machine) {
    const Memory memory = machine.memory();
    return {
        operating_system_line(machine.operating_system()),
        processor_line(machine.processor_type()),
        u"Total Physical Memory: " + kilobytes(memory.total_physical),
        u"Available Physical Memory: " + kilobytes(memory.available_physical),
        u"Total Virtual Memory: " + kilobytes(memory.total_virtual),
        u"Available Virtual Memory: " + kilobytes(memory.available_virtual),
    };
}

} // namespace ornavel::diagnostics
