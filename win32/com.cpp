#include "win32/com.h"

#include "win32/wide.h"

#include <new>

namespace ornavel::win32 {

Bstr::Bstr(TextView text)
    : string_(
          SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()), static_cast<UINT>(text.size()))) {
    if (!string_) throw std::bad_alloc();
}

Text text_of_bstr(BSTR string) { return string ? text_of({string, SysStringLen(string)}) : Text(); }

} // namespace ornavel::win32
