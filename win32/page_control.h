#pragma once

#include "win32/form_window.h"
#include "win32/property_page.h"

#include <memory>
#include <ole2.h>
#include <olectl.h>

namespace ornavel::win32 {

/// A form as an ActiveX control, which is a page of the mail client's Options dialog: lives in place in a
/// window of its container, tells its site of changes, and answers the mail client. Nothing that fails inside
/// gets out. Whoever derives from it owns the form.
class PageControl : public Counted<PropertyPage>,
                    public IOleObject,
                    public IOleInPlaceObject,
                    public IOleInPlaceActiveObject,
                    public IOleControl,
                    public IPersistStreamInit {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Counted::Release(); }

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD how,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* bad_argument) override;

    // PropertyPage
    HRESULT STDMETHODCALLTYPE GetPageInfo(BSTR*, LONG*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE get_Dirty(VARIANT_BOOL* Dirty) override;
    HRESULT STDMETHODCALLTYPE Apply() override;

    // IOleObject
    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Close(DWORD save) override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG, HWND parent,
                                     LPCRECT place) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* class_id) override { return GetClassID(class_id); }
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD, LPOLESTR*) override { return OLE_S_USEREG; }
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* extent) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* extent) override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink*, DWORD*) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    // IOleWindow
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

    // IOleInPlaceObject
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }

    // IOleInPlaceActiveObject
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

    // IOleControl
    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* information) override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(LPMSG message) override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL) override { return S_OK; }

    // IPersistStreamInit: what the page shows lies in the settings.
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE Load(IStream*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Save(IStream*, BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override;
    HRESULT STDMETHODCALLTYPE InitNew() override { return S_OK; }

protected:
    ~PageControl() override { end_window(); }
    virtual forms::Form& form() = 0;
    virtual bool is_dirty() = 0;
    virtual void apply() = 0;

    /// Tells the dialog of a change that the user has made.
    void tell_change();
    /// Before the form goes.
    void end_window() noexcept;

private:
    struct FreeAccessKeys {
        void operator()(HACCEL keys) const { DestroyAcceleratorTable(keys); }
    };

    HRESULT show(HWND parent, const RECT* place);
    HRESULT take_keyboard(const MSG* message);
    void enter();
    ComPtr<IOleInPlaceSite> in_place_site() const;

    ComPtr<IOleClientSite> site_;
    ComPtr<IOleInPlaceFrame> frame_;
    std::unique_ptr<FormWindow> window_;
    std::unique_ptr<HACCEL__, FreeAccessKeys> access_keys_; ///< as the container was told them
    bool has_keyboard_ = false;
    SIZEL extent_{};
};

} // namespace ornavel::win32
