#include "base/file_address.h"
#include "workbench/lint/known_fields.h"
#include "workbench/lint/sheet.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

constexpr std::size_t large_picture = 200'000;

bool is_elsewhere(const Text& address) {
    const Text lower = lower_case(address);
    for (const TextView scheme : {u"http:", u"https:", u"cid:", u"data:", u"mailto:"})
        if (lower.starts_with(scheme)) return true;
    return false;
}

bool is_absolute(TextView path) { return names_drive(path) || path.starts_with(u"\\"); }

bool lies_below(TextView path, TextView folder) {
    return !folder.empty() && same_name(path.substr(0, folder.size() + 1), Text(folder) + u"\\");
}

/// The folder around that of the templates or signatures: pictures usually stand beside these.
Text home_of(const Ground& ground, const settings::PathKey& key) {
    const Text folder = read(ground.store, key), above = folder_of(folder);
    return above.size() > 2 && above != u"." ? above : folder;
}

class Picture {
public:
    Picture(const Sheet& sheet, const Attribute& address) : sheet_(sheet), at_(address.value_at) {
        const Text value = merged(address.value, sheet.ground.store);
        known_ = !value.empty() && !contains(value, u"[#") && !is_elsewhere(value);
        path_ = path_of_address(value);
        relative_ = !is_absolute(path_);
        if (relative_) path_ = folder_of(sheet.path) + u"\\" + path_;
    }

    void check() const {
        if (!known_) return;
        check_place();
        if (!sheet_.ground.files.can_tell(path_)) return;
        if (!sheet_.ground.files.file_exists(path_))
            return sheet_.tell(at_, "image-missing", path_ + u" is not there",
                               u"Correct the address, or bring the picture");
        check_size();
    }

private:
    void check_place() const {
        const Ground& ground = sheet_.ground;
        if (relative_)
            return sheet_.tell(
                at_, "image-local",
                u"This address is relative: the message that leaves does not know the template's folder",
                u"Write the whole path, such as file:///C:/Stationery/logo.gif");
        if (!ground.file || lies_below(path_, home_of(ground, settings::admin::HTMFilesPath)) ||
            lies_below(path_, home_of(ground, settings::admin::SignaturesPath)))
            return;
        sheet_.tell(at_, "image-local", path_ + u" lies outside the stationery's folders",
                    u"Put it beside the templates, where every sender has it");
    }

    void check_size() const {
        std::size_t size = 0;
        attempt([&] { size = sheet_.ground.files.read(path_).size(); });
        if (size > large_picture)
            sheet_.tell(at_, "size",
                        u"This picture has " + to_text(static_cast<long long>(size / 1000)) +
                            u" KB, and it goes with every message",
                        u"Make it smaller");
    }

    const Sheet& sheet_;
    std::size_t at_;
    Text path_;
    bool known_ = false, relative_ = false;
};

} // namespace

void check_images(const Sheet& sheet) {
    for (const Tag& tag : sheet.page.tags) {
        if (tag.closing) continue;
        for (const TextView name : {u"src", u"background"})
            if (const Attribute* address = tag.attribute(name);
                address && (name != u"src" || tag.name == u"img"))
                Picture(sheet, *address).check();
        if (tag.name == u"img" && !tag.attribute(u"alt"))
            sheet.tell(tag.begin, "image-alt", u"This image has no alt, so nothing stands in its place",
                       u"Add alt=\"...\", or alt=\"\" for one that only decorates");
    }
}

} // namespace ornavel::workbench
