#pragma once

#include <windows.h>

#include <oaidl.h>

namespace ornavel::win32 {

inline constexpr IID IID_IDTExtensibility2{
    0xB65AD801, 0xABAF, 0x11D0, {0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F, 0x27, 0x44}};

/// How the mail client calls its add-ins; the order of the members is the order of its table.
struct IDTExtensibility2 : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* Application, LONG ConnectMode,
                                                   IDispatch* AddInInst, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnDisconnection(LONG RemoveMode, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

} // namespace ornavel::win32
