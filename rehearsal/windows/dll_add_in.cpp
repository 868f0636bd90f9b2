#include "rehearsal/windows/dll_add_in.h"

#include "rehearsal/windows/served_values.h"
#include "win32/registry.h"
#include "win32/values.h"
#include "win32/wide.h"

#include <cstdlib>
#include <objbase.h>

namespace ornavel::rehearsal {
namespace {

void must(HRESULT outcome, TextView what) {
    if (FAILED(outcome)) win32::fail(what, static_cast<DWORD>(outcome));
}

/// The DLL as built beside this program.
Text built_dll() {
    const Text program = win32::path_of(nullptr);
    const Text folder = program.substr(0, program.find_last_of(u'\\'));
    return folder.substr(0, folder.find_last_of(u'\\')) + u"\\shell\\Ornavel.dll";
}

HRESULT call(HMODULE module, const char* name) {
    using Export = HRESULT(STDMETHODCALLTYPE*)();
    const auto function = reinterpret_cast<Export>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    return function ? function() : E_NOTIMPL;
}

/// Whether the DLL that a package has installed is played as it is, instead of the one built beside this
/// program.
bool is_installed_already() { return std::getenv("ORNAVEL_INSTALLED") != nullptr; }

void copy(TextView from, TextView to) {
    if (!CopyFileW(win32::wide(from).c_str(), win32::wide(to).c_str(), FALSE))
        win32::fail(to, GetLastError());
}

win32::ComPtr<win32::IDTExtensibility2> make_add_in() {
    CLSID id{};
    must(CLSIDFromProgID(L"Ornavel.Connect", &id), u"Ornavel.Connect");
    win32::ComPtr<win32::IDTExtensibility2> add_in;
    must(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, win32::IID_IDTExtensibility2,
                          add_in.out_untyped()),
         u"Ornavel.Connect");
    return add_in;
}

} // namespace

InstalledDll::InstalledDll(TextView folder) : path_(Text(folder) + u"\\Ornavel.dll"), module_(nullptr) {
    if (!is_installed_already()) copy(built_dll(), path_);
    module_ = LoadLibraryW(win32::wide(path_).c_str());
    if (!module_) win32::fail(path_, GetLastError());
    if (!is_installed_already()) must(call(module_, "DllRegisterServer"), u"DllRegisterServer");
}

void InstalledDll::forget_page() { win32::remove_key(u"Software\\Classes\\BrevantPage.PropPage"); }

InstalledDll::~InstalledDll() {
    if (!is_installed_already()) call(module_, "DllUnregisterServer");
    CoFreeUnusedLibrariesEx(0, 0);
    FreeLibrary(module_);
}

DllAddIn::DllAddIn(std::shared_ptr<Subscriptions> subscriptions, WindowsMachine& machine)
    : subscriptions_(std::move(subscriptions)), machine_(machine), add_in_(make_add_in()) {}

void DllAddIn::make() {
    if (was_connected_) add_in_ = make_add_in();
    was_connected_ = true;
    ribbon_ = {};
    must(add_in_->QueryInterface(win32::IID_IRibbonExtensibility, ribbon_.out_untyped()),
         u"IRibbonExtensibility");
}

Text DllAddIn::custom_ui(TextView ribbon_id) {
    const win32::Bstr id(ribbon_id);
    win32::Variant markup; // owns the text
    must(ribbon_->GetCustomUI(id.get(), &markup->bstrVal), u"GetCustomUI");
    markup->vt = VT_BSTR;
    return win32::text_of_bstr(markup->bstrVal);
}

/// As a mail client does it: by the name, late-bound.
host::Value DllAddIn::run_callback(const Text& name, const host::ObjectPtr& argument) {
    std::wstring wide_name = win32::wide(name);
    LPOLESTR names[] = {wide_name.data()};
    DISPID id = DISPID_UNKNOWN;
    must(ribbon_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), name);
    win32::Variant passed = served_variant(argument, subscriptions_), answer;
    DISPPARAMS parameters{passed.address(), nullptr, 1, 0};
    must(ribbon_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, answer.address(),
                         nullptr, nullptr),
         name);
    return win32::to_value(std::move(answer));
}

void DllAddIn::connect(const host::ObjectPtr& application, int mode) {
    must(add_in_->OnConnection(serve(application, subscriptions_).get(), mode, nullptr, nullptr),
         u"OnConnection");
}

void DllAddIn::start() { must(add_in_->OnStartupComplete(nullptr), u"OnStartupComplete"); }
void DllAddIn::update() { must(add_in_->OnAddInsUpdate(nullptr), u"OnAddInsUpdate"); }
void DllAddIn::shutdown() { must(add_in_->OnBeginShutdown(nullptr), u"OnBeginShutdown"); }
void DllAddIn::disconnect(int remove_mode) {
    must(add_in_->OnDisconnection(remove_mode, nullptr), u"OnDisconnection");
}

} // namespace ornavel::rehearsal
