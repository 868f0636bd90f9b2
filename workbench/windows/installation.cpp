#include "base/errors.h"
#include "workbench/windows/parts.h"
#include "workbench/windows/registry_look.h"

#include <cstring>

namespace ornavel::workbench {
namespace {

using State = Diagnosis::State;

constexpr TextView class_key =
    u"Software\\Classes\\CLSID\\{01F2687D-003D-4805-8744-2B3921019DBC}\\InprocServer32";
constexpr TextView add_in_key = u"Software\\Microsoft\\Office\\Outlook\\Addins\\Ornavel.Connect";
constexpr TextView register_it =
    u"Register it as the user who will use it: regsvr32 \"C:\\...\\Ornavel.dll\"";

Text words_for(Bits bits) { return bits == Bits::x64 ? u"64-bit" : u"32-bit"; }
Bits other(Bits bits) { return bits == Bits::x64 ? Bits::x86 : Bits::x64; }

/// What the mail client's setup noted of its own bits, from version 14 on.
std::optional<Bits> noted(TextView version, Bits programs) {
    const Text key = u"Software\\Microsoft\\Office\\" + Text(version) + u"\\Outlook";
    const auto text = text_in(HKEY_LOCAL_MACHINE, key, u"Bitness", programs);
    if (text == u"x64") return Bits::x64;
    if (text == u"x86") return Bits::x86;
    return {};
}

/// Nothing where no setup noted it, or two of them disagree.
std::optional<Bits> bits_of_mail_client() {
    std::optional<Bits> found;
    for (const TextView version : {u"14.0", u"15.0", u"16.0"})
        for (const Bits programs : {Bits::x86, Bits::x64}) {
            const auto bits = noted(version, programs);
            if (bits && found && *bits != *found) return {};
            if (bits) found = bits;
        }
    return found;
}

struct Registration {
    Text dll;
    bool for_user;
};

std::optional<Registration> registered_for(Bits programs) {
    if (const auto dll = text_in(HKEY_CURRENT_USER, class_key, u"", programs)) return {{*dll, true}};
    if (const auto dll = text_in(HKEY_LOCAL_MACHINE, class_key, u"", programs)) return {{*dll, false}};
    return {};
}

/// The bits of the Windows code in a file; nothing where there is none.
std::optional<Bits> bits_of_module(const Files& files, TextView path) {
    std::string bytes;
    attempt([&] { bytes = files.read(path); });
    if (bytes.size() < 0x40 || !bytes.starts_with("MZ")) return {};
    std::uint32_t header = 0;
    std::memcpy(&header, bytes.data() + 0x3C, sizeof header);
    if (header >= bytes.size() - 6) return {};
    if (bytes.compare(header, 6, std::string_view("PE\0\0\x4C\x01", 6)) == 0) return Bits::x86;
    if (bytes.compare(header, 6, std::string_view("PE\0\0\x64\x86", 6)) == 0) return Bits::x64;
    return {};
}

TextView package_for(Bits bits) {
    return bits == Bits::x64 ? u"Install the package for 64-bit Outlook, whose name ends in -x64.msi"
                             : u"Install the package for 32-bit Outlook, whose name does not end in -x64.msi";
}

class Installation {
public:
    explicit Installation(const Files& files)
        : files_(files), bits_(bits_of_mail_client().value_or(bits_of_registration(files))) {}

    std::vector<Diagnosis> look() {
        look_at_registration();
        look_at_loading();
        return std::move(all_);
    }

private:
    /// Without a word on the mail client's bits, it is the one for which a module that fits is registered.
    static Bits bits_of_registration(const Files& files) {
        for (const Bits bits : {Bits::x86, Bits::x64})
            if (const auto registration = registered_for(bits))
                if (bits_of_module(files, registration->dll) == bits) return bits;
        return Bits::x86;
    }

    void say(State state, TextView what, Text seen, TextView advice = {}) {
        all_.push_back({state, Text(what), std::move(seen), Text(advice)});
    }

    void look_at_registration() {
        const auto registration = registered_for(bits_);
        if (!registration) return look_at_no_registration();
        // Each registration brings its own entry among Outlook's add-ins.
        const bool twice = number_in(HKEY_CURRENT_USER, add_in_key, u"LoadBehavior") &&
                           number_in(HKEY_LOCAL_MACHINE, add_in_key, u"LoadBehavior", bits_);
        if (twice)
            say(State::look, u"registration", u"registered twice: for this user, and for the machine",
                u"The user's one is loaded. Remove it with regsvr32 /u, or uninstall the package");
        else
            say(State::fine, u"registration", registration->for_user ? u"for this user" : u"for the machine");
        look_at_module(registration->dll);
    }

    void look_at_no_registration() {
        if (!registered_for(other(bits_)))
            return say(State::broken, u"registration", u"Ornavel.dll is not registered", register_it);
        say(State::broken, u"registration",
            u"registered for " + words_for(other(bits_)) + u" programs, and Outlook is " + words_for(bits_),
            package_for(bits_));
    }

    void look_at_module(const Text& dll) {
        const auto bits = bits_of_module(files_, dll);
        if (bits == bits_) return say(State::fine, u"module", dll);
        if (bits)
            return say(State::broken, u"module",
                       dll + u" is " + words_for(*bits) + u", and is registered for " + words_for(bits_) +
                           u" programs, which can't load it",
                       package_for(bits_));
        const bool there = files_.file_exists(dll);
        say(State::broken, u"module", dll + (there ? u" is no module for Windows" : u" is not there"),
            u"Bring Ornavel.dll there, or register it where it is");
    }

    void look_at_loading() {
        const auto for_user = number_in(HKEY_CURRENT_USER, add_in_key, u"LoadBehavior");
        const auto behavior =
            for_user ? for_user : number_in(HKEY_LOCAL_MACHINE, add_in_key, u"LoadBehavior", bits_);
        if (!behavior)
            return say(State::broken, u"loading", u"Outlook does not know the add-in", register_it);
        if (*behavior == 3) return say(State::fine, u"loading", u"at Outlook's start");
        say(State::broken, u"loading",
            u"LoadBehavior is " + to_text(*behavior) + u", so Outlook does not load it at its start",
            u"Close Outlook and set LoadBehavior to 3, or tick Ornavel in Outlook's list of COM add-ins");
    }

    const Files& files_;
    Bits bits_; ///< of the mail client
    std::vector<Diagnosis> all_;
};

} // namespace

std::vector<Diagnosis> look_at_installation(const Files& files) { return Installation(files).look(); }

} // namespace ornavel::workbench
