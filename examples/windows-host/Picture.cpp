#include "examples/windows-host/Picture.h"

#include <windows.h>

#include <gdiplus.h>

bool SavePicture(void* window, const std::wstring& file)
{
    constexpr CLSID Png = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    HWND shown = static_cast<HWND>(window);
    RedrawWindow(shown, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT area;
    GetWindowRect(shown, &area);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP picture = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ before = SelectObject(memory, picture);
    BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    SelectObject(memory, before);
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR session = 0;
    Gdiplus::GdiplusStartup(&session, &input, nullptr);
    Gdiplus::Status saved = Gdiplus::GenericError;
    {
        Gdiplus::Bitmap bitmap(picture, nullptr);
        saved = bitmap.Save(file.c_str(), &Png, nullptr);
    }
    Gdiplus::GdiplusShutdown(session);
    DeleteObject(picture);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return saved == Gdiplus::Ok;
}
