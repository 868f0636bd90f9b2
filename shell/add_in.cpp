#include "shell/add_in.h"

#include "win32/dispatch_object.h"
#include "win32/environment.h"
#include "win32/values.h"
#include "win32/wide.h"

namespace ornavel::shell {
namespace {

enum Handler : DISPID {
    on_connection = 1,
    on_disconnection,
    on_addins_update,
    on_startup_complete,
    on_begin_shutdown
};

struct HandlerName {
    TextView name;
    Handler handler;
};

constexpr HandlerName handlers[] = {
    {u"OnConnection", on_connection},        {u"OnDisconnection", on_disconnection},
    {u"OnAddInsUpdate", on_addins_update},   {u"OnStartupComplete", on_startup_complete},
    {u"OnBeginShutdown", on_begin_shutdown},
};

DISPID find_handler(TextView name) {
    for (const auto& row : handlers)
        if (same_name(row.name, name)) return row.handler;
    return DISPID_UNKNOWN;
}

/// Without a backslash at its end.
Text addin_folder() {
    const Text path = win32::path_of(win32::this_module());
    return path.substr(0, path.find_last_of(u'\\'));
}

/// Runs a handler on behalf of the mail client: nothing gets out, and the object stays until it has ended.
template <class Body>
HRESULT at_boundary(IUnknown* object, Body body) noexcept {
    const win32::ComPtr<IUnknown> kept(object);
    attempt(body);
    return S_OK;
}

/// One argument of a late-bound call, counted from the first; one that is not there is empty.
host::Value argument(const DISPPARAMS* parameters, UINT index) {
    if (!parameters || index >= parameters->cArgs) return host::Empty{};
    return win32::to_value(parameters->rgvarg[parameters->cArgs - 1 - index]);
}

} // namespace

connect::Platform Machine::platform(IUnknown* owner) {
    const auto keep = [owner] { return std::make_shared<win32::ComPtr<IUnknown>>(owner); };
    return {.settings = settings_,
            .files = files_,
            .clock = clock_,
            .launcher = launcher_,
            .objects = objects_,
            .windows = windows_,
            .strings = strings_,
            .machine = information_,
            .addin_folder = addin_folder(),
            .user_folder = win32::user_folder(),
            .keep = keep,
            .tray = &tray_};
}

AddIn::~AddIn() {
    if (connected_ == this) connected_ = nullptr;
}

void AddIn::connect(host::Application application, int mode) {
    connected_ = this;
    connect_.OnConnection(std::move(application), mode);
}

void AddIn::disconnect(int remove_mode) {
    if (connected_ == this) connected_ = nullptr;
    connect_.OnDisconnection(remove_mode);
}

HRESULT AddIn::QueryInterface(REFIID wanted, void** object) {
    return answer(wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == win32::IID_IDTExtensibility2,
                  object);
}

HRESULT AddIn::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT AddIn::GetTypeInfo(UINT, LCID, ITypeInfo**) { return E_NOTIMPL; }

HRESULT AddIn::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    // The first name is the handler's; its parameters have no names here.
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    attempt([&] { ids[0] = find_handler(win32::text_of(names[0])); });
    return count > 1 || ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT AddIn::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
    if (id < on_connection || id > on_begin_shutdown) return DISP_E_MEMBERNOTFOUND;
    return at_boundary(this, [&] {
        switch (id) {
        case on_connection:
            connect(host::Application(host::as_object_or_nothing(argument(parameters, 0))),
                    host::as_number(argument(parameters, 1)));
            break;
        case on_disconnection:
            disconnect(host::as_number(argument(parameters, 0)));
            break;
        case on_addins_update:
            connect_.OnAddInsUpdate();
            break;
        case on_startup_complete:
            connect_.OnStartupComplete();
            break;
        default:
            connect_.OnBeginShutdown();
            break;
        }
    });
}

HRESULT AddIn::OnConnection(IDispatch* Application, LONG ConnectMode, IDispatch*, SAFEARRAY**) {
    return at_boundary(this, [&] { connect(host::Application(win32::object_of(Application)), ConnectMode); });
}

HRESULT AddIn::OnDisconnection(LONG RemoveMode, SAFEARRAY**) {
    return at_boundary(this, [&] { disconnect(RemoveMode); });
}

HRESULT AddIn::OnAddInsUpdate(SAFEARRAY**) {
    return at_boundary(this, [&] { connect_.OnAddInsUpdate(); });
}

HRESULT AddIn::OnStartupComplete(SAFEARRAY**) {
    return at_boundary(this, [&] { connect_.OnStartupComplete(); });
}

HRESULT AddIn::OnBeginShutdown(SAFEARRAY**) {
    return at_boundary(this, [&] { connect_.OnBeginShutdown(); });
}

} // namespace ornavel::shell
