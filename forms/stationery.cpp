#include "forms/stationery.h"

namespace ornavel::forms {

Text display_name(TextView file) { return Text(file.substr(0, file.find(u".htm"))); }

std::vector<Text> stationery_in(const Files& files, TextView folder) {
    std::vector<Text> names = files.list(folder);
    std::erase_if(names, [](const Text& file) {
        const Text name = lower_case(file);
        return !name.ends_with(u".htm") || name.ends_with(u"_merge.htm");
    });
    return names;
}

} // namespace ornavel::forms
