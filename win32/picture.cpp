#include "win32/picture.h"

#include "win32/com.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <algorithm>
#include <olectl.h>

namespace ornavel::win32 {
namespace {

/// OLE measures pictures in hundredths of a millimetre.
constexpr int hundredths_per_inch = 2540;

void check(HRESULT outcome, TextView path) {
    if (FAILED(outcome)) fail(path, static_cast<DWORD>(outcome));
}

ComPtr<IPicture> read_picture(TextView path) {
    const std::string bytes = WindowsFiles().read(path);
    ComPtr<IStream> stream;
    check(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()), path);
    check(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr), path);
    check(stream->Seek({}, STREAM_SEEK_SET, nullptr), path);
    ComPtr<IPicture> picture;
    check(OleLoadPicture(stream.get(), 0, TRUE, IID_IPicture, picture.out_untyped()), path);
    return picture;
}

/// A picture and the size that OLE has it in.
struct Measured {
    IPicture& picture;
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;

    explicit Measured(IPicture& of) : picture(of) {
        picture.get_Width(&width);
        picture.get_Height(&height);
    }
    SIZE pixels(HDC screen) const {
        return {MulDiv(width, GetDeviceCaps(screen, LOGPIXELSX), hundredths_per_inch),
                MulDiv(height, GetDeviceCaps(screen, LOGPIXELSY), hundredths_per_inch)};
    }
};

/// Within the room, in the picture's proportions.
SIZE fitted(SIZE picture, SIZE room) {
    if (picture.cx > room.cx) picture = {room.cx, MulDiv(picture.cy, room.cx, picture.cx)};
    if (picture.cy > room.cy) picture = {MulDiv(picture.cx, room.cy, picture.cy), room.cy};
    return {std::max(picture.cx, 1L), std::max(picture.cy, 1L)};
}

HRESULT draw(const Measured& measured, HDC canvas, SIZE room) {
    const RECT whole{0, 0, room.cx, room.cy};
    FillRect(canvas, &whole, GetSysColorBrush(COLOR_BTNFACE));
    const SIZE size = fitted(measured.pixels(canvas), room);
    // OLE's pictures stand on their heads: their height is counted from below.
    return measured.picture.Render(canvas, (room.cx - size.cx) / 2, (room.cy - size.cy) / 2, size.cx, size.cy,
                                   0, measured.height, measured.width, -measured.height, nullptr);
}

} // namespace

Owned<&DeleteObject> load_picture(TextView path, SIZE pixels) {
    const ComPtr<IPicture> picture = read_picture(path);
    const HDC screen = GetDC(nullptr);
    const HDC canvas = CreateCompatibleDC(screen);
    Owned<&DeleteObject> bitmap(CreateCompatibleBitmap(screen, pixels.cx, pixels.cy));
    const HGDIOBJ before = SelectObject(canvas, bitmap.get());
    const HRESULT drawn = draw(Measured(*picture.get()), canvas, pixels);
    SelectObject(canvas, before);
    DeleteDC(canvas);
    ReleaseDC(nullptr, screen);
    check(drawn, path);
    return bitmap;
}

} // namespace ornavel::win32
