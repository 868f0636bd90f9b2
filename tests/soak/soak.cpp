// soak.exe SENDS MODES WINDOWS CONNECTIONS: the real DLL in one process, through that many sends, changes of
// the mode, preview windows and connections. Counts afterwards what it has not given back: windows, kernel
// handles, objects of the mail client; and by how much memory grew in the second half. Exit code 1 where
// anything was left, or the memory grew by 256 KB. The counters first have to notice things that are left on
// purpose.
#include "rehearsal/windows/dll_add_in.h"
#include "rehearsal/windows/served_classes.h"
#include "rehearsal/windows/windows_machine.h"

#include "base/encoding.h"
#include "base/errors.h"

#include <cstdio>
#include <cstdlib>
#include <objbase.h>

namespace ornavel::rehearsal {
namespace {

constexpr const char* world = R"({
    "settings": {
        "Admin Settings": {"SigEmail": "jo@example.com", "SigWebsite": "www.example.com", "StartupSetupWiz": "False",
                           "HTM Files Path": "C:\\stationery", "Signatures Path": "C:\\signatures",
                           "OutlookSignaturePath": "C:\\host", "ErrorFileLocation": "C:\\log.txt", "SysTray": "True",
                           "ShowConfigWizButton": "False", "SigFullname": "Jo Sender"},
        "User Settings": {"SettingButtonBar": "auto", "Template": "letter.htm", "Signature": "jo_template.htm"}},
    "files": {"C:\\stationery\\letter.htm": "<html><body>[#Input your message here#]</body></html>\r\n",
              "C:\\signatures\\jo_template.htm": "<p>[#SigFullname#]<br>Cell: [#SigCell#]</p>\r\n",
              "C:\\signatures\\jo_template.rtf": "{\\rtf1 [#SigFullname#]}\r\n"},
    "folders": ["C:\\host"],
    "items": [{"Subject": "Hello", "HTMLBody": "<html><body><p>Hello</p></body></html>", "Recipients": ["ann@example.com"]}],
    "do": []})";

BOOL CALLBACK count_window(HWND, LPARAM count) {
    ++*reinterpret_cast<long*>(count);
    return TRUE;
}

long windows_of_this_thread() {
    long count = 0;
    EnumThreadWindows(GetCurrentThreadId(), count_window, reinterpret_cast<LPARAM>(&count));
    return count;
}

/// The system gives out the lowest number that is free.
long kernel_handles() {
    const HANDLE fresh = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const auto number = static_cast<long>(reinterpret_cast<INT_PTR>(fresh));
    CloseHandle(fresh);
    return number / 4;
}

long allocated_kilobytes() {
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    unsigned long long bytes = 0;
    for (DWORD i = 0; i < count && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    }
    return static_cast<long>(bytes / 1024);
}

struct Counts {
    long windows = windows_of_this_thread();
    long handles = kernel_handles();
    long references = 0;
    long kilobytes = allocated_kilobytes();
};

class Soak {
public:
    Soak() {
        machine_.prepare(scenario_);
        client_.emplace(scenario_, machine_, failures_, journal_);
    }

    void run(int sends, int modes, int previews);
    Counts counts() {
        Counts now;
        now.references = static_cast<long>(client_->references()->held());
        return now;
    }
    bool notices_what_is_left();
    void begin() {
        subscriptions_ = std::make_shared<Subscriptions>();
        classes_.emplace(*client_, subscriptions_);
        dll_.emplace(scenario_.computer.addin_folder);
        machine_.watch(dll_->module());
        add_in_.emplace(subscriptions_, machine_);
    }

private:
    void send();
    void preview();
    void forget();

    Scenario scenario_ = read_scenario(parse_json(world, "soak"), "soak", Binding::wine);
    Failures failures_{{}};
    Journal journal_;
    WindowsMachine machine_{scenario_, "soak"};
    std::optional<MailClient> client_;
    std::shared_ptr<Subscriptions> subscriptions_;
    std::optional<ServedClasses> classes_;
    std::optional<InstalledDll> dll_;
    std::optional<DllAddIn> add_in_;
};

/// What only the stand-in keeps.
void Soak::forget() {
    journal_.forget();
    failures_.forget();
    machine_.forget();
}

void Soak::send() {
    MailItemNode& item = *client_->items[0];
    item.html_body = u"<html><body><p>Hello</p></body></html>";
    item.billing_information.clear();
    item.user_property_nodes.clear();
    client_->send(item);
    forget();
}

/// Nobody expects the window, so its frame closes it.
void Soak::preview() {
    machine_.change_settings({{u"Admin Settings", {{u"AutoPreview", u"True"}}}});
    send();
    machine_.change_settings({{u"Admin Settings", {{u"AutoPreview", u"False"}}}});
}

void Soak::run(int sends, int modes, int previews) {
    add_in_->connect(client_->application(), 1);
    add_in_->start();
    for (int i = 0; i < sends; ++i) send();
    for (int i = 0; i < previews; ++i) preview();
    for (int i = 0; i < modes; ++i) {
        client_->click(*client_->standard_bar->find(u"EmailMonitor"));
        forget();
    }
    machine_.change_settings({{u"User Settings", {{u"SettingButtonBar", u"auto"}}}});
    add_in_->shutdown();
    add_in_->disconnect(1);
    forget();
}

bool Soak::notices_what_is_left() {
    constexpr int planted = 10;
    constexpr std::size_t many_bytes = 300'000;
    const Counts before = counts();
    std::vector<HWND> windows;
    std::vector<HANDLE> handles;
    std::vector<host::ObjectPtr> references;
    for (int i = 0; i < planted; ++i) {
        windows.push_back(
            CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
        handles.push_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
        references.push_back(client_->application());
    }
    const std::string memory(many_bytes, 'x');
    const Counts after = counts();
    for (const HWND window : windows) DestroyWindow(window);
    for (const HANDLE handle : handles) CloseHandle(handle);
    return after.windows - before.windows >= planted && after.handles - before.handles >= planted &&
           after.references - before.references >= planted &&
           after.kilobytes - before.kilobytes >= static_cast<long>(memory.size() / 1024);
}

int soak(int sends, int modes, int previews, int connections) {
    constexpr long most_kilobytes = 256;
    Soak at_work;
    at_work.begin();
    at_work.run(2, 3, 1); // what is made once, at the first use, is no leak
    if (!at_work.notices_what_is_left()) {
        std::printf("soak: the counters notice nothing\n");
        return 1;
    }
    const Counts first = at_work.counts();
    Counts half;
    for (int i = 0; i < connections; ++i) {
        if (i == connections / 2) half = at_work.counts();
        at_work.run(sends / connections, modes / connections, previews / connections);
    }
    const Counts last = at_work.counts();
    const long grown = last.kilobytes - half.kilobytes;
    std::printf(
        "soak: %d sends, %d modes, %d windows, %d connections left %ld windows, %ld handles, %ld references; "
        "memory grew by %ld KB in the first half and %ld KB in the second\n",
        sends, modes, previews, connections, last.windows - first.windows, last.handles - first.handles,
        last.references, half.kilobytes - first.kilobytes, grown);
    const bool clean = last.windows <= first.windows && last.handles <= first.handles && last.references == 0;
    return clean && grown < most_kilobytes ? 0 : 1;
}

} // namespace
} // namespace ornavel::rehearsal

int main(int count, char** words) {
    if (count != 5 || FAILED(CoInitialize(nullptr))) return 2;
    int code = 1;
    try {
        code = ornavel::rehearsal::soak(std::atoi(words[1]), std::atoi(words[2]), std::atoi(words[3]),
                                        std::atoi(words[4]));
    } catch (...) {
        std::printf("soak: %s\n", ornavel::to_utf8(ornavel::current_description()).c_str());
    }
    CoUninitialize();
    return code;
}
