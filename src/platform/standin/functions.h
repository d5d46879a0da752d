// The stand-in's Win32 functions. The Windows build's tests compile these declarations once more
// after <windows.h>, so that a signature that differs does not compile there.
#pragma once

#ifndef _WIN32
#include "platform/standin/types.h"
#endif

extern "C" {

// Window classes, windows and their properties
ATOM WINAPI RegisterClassExA(const WNDCLASSEXA* windowClass);
BOOL WINAPI UnregisterClassA(LPCSTR name, HINSTANCE instance);
HWND WINAPI CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y,
                            int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                            LPVOID param);
BOOL WINAPI DestroyWindow(HWND window);
LRESULT WINAPI DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT WINAPI CallWindowProcA(WNDPROC proc, HWND window, UINT message, WPARAM wParam,
                               LPARAM lParam);
LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index);
LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
BOOL WINAPI IsWindow(HWND window);
BOOL WINAPI IsWindowVisible(HWND window);
BOOL WINAPI IsWindowEnabled(HWND window);
BOOL WINAPI EnableWindow(HWND window, BOOL enable);
HWND WINAPI GetParent(HWND window);
HWND WINAPI FindWindowA(LPCSTR className, LPCSTR text);
BOOL WINAPI EnumChildWindows(HWND parent, WNDENUMPROC proc, LPARAM param);
BOOL WINAPI EnumThreadWindows(DWORD thread, WNDENUMPROC proc, LPARAM param);
int WINAPI GetClassNameA(HWND window, LPSTR buffer, int size);
int WINAPI GetWindowTextA(HWND window, LPSTR buffer, int size);
int WINAPI GetWindowTextLengthA(HWND window);
BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text);

// Showing and placing
BOOL WINAPI ShowWindow(HWND window, int command);
BOOL WINAPI AnimateWindow(HWND window, DWORD milliseconds, DWORD flags);
BOOL WINAPI SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL WINAPI GetWindowRect(HWND window, LPRECT rect);
BOOL WINAPI GetClientRect(HWND window, LPRECT rect);

// Scroll bars
BOOL WINAPI SetScrollRange(HWND window, int bar, int minimum, int maximum, BOOL redraw);
BOOL WINAPI GetScrollRange(HWND window, int bar, LPINT minimum, LPINT maximum);
int WINAPI SetScrollPos(HWND window, int bar, int position, BOOL redraw);
int WINAPI GetScrollPos(HWND window, int bar);
BOOL WINAPI ShowScrollBar(HWND window, int bar, BOOL show);

// Messages and timers
BOOL WINAPI GetMessageA(LPMSG message, HWND window, UINT first, UINT last);
BOOL WINAPI PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove);
BOOL WINAPI TranslateMessage(const MSG* message);
LRESULT WINAPI DispatchMessageA(const MSG* message);
BOOL WINAPI PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT WINAPI SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VOID WINAPI PostQuitMessage(int exitCode);
UINT_PTR WINAPI SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC proc);
BOOL WINAPI KillTimer(HWND window, UINT_PTR id);

// Keyboard, mouse and focus
HWND WINAPI SetFocus(HWND window);
HWND WINAPI GetFocus();
HWND WINAPI SetCapture(HWND window);
BOOL WINAPI ReleaseCapture();
HWND WINAPI GetCapture();
SHORT WINAPI GetAsyncKeyState(int key);
VOID WINAPI keybd_event(BYTE key, BYTE scanCode, DWORD flags, ULONG_PTR extra);

// Menus
HMENU WINAPI GetMenu(HWND window);
HMENU WINAPI GetSubMenu(HMENU menu, int position);
int WINAPI GetMenuItemCount(HMENU menu);
UINT WINAPI GetMenuItemID(HMENU menu, int position);
UINT WINAPI GetMenuState(HMENU menu, UINT item, UINT flags);
int WINAPI GetMenuStringA(HMENU menu, UINT item, LPSTR buffer, int size, UINT flags);
DWORD WINAPI CheckMenuItem(HMENU menu, UINT item, UINT flags);
BOOL WINAPI CheckMenuRadioItem(HMENU menu, UINT first, UINT last, UINT check, UINT flags);
BOOL WINAPI EnableMenuItem(HMENU menu, UINT item, UINT flags);

// Dialogs
INT_PTR WINAPI DialogBoxParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC proc,
                               LPARAM param);
BOOL WINAPI EndDialog(HWND dialog, INT_PTR result);
BOOL WINAPI IsDialogMessageA(HWND dialog, LPMSG message);
HWND WINAPI GetDlgItem(HWND dialog, int id);
int WINAPI GetDlgCtrlID(HWND window);
BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR buffer, int size);
BOOL WINAPI SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
UINT WINAPI GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned);
LRESULT WINAPI SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
UINT WINAPI IsDlgButtonChecked(HWND dialog, int id);
BOOL WINAPI CheckRadioButton(HWND dialog, int first, int last, int check);
int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
BOOL WINAPI MessageBeep(UINT type);
VOID WINAPI InitCommonControls();
BOOL WINAPI GetOpenFileNameA(LPOPENFILENAMEA dialog);
BOOL WINAPI GetSaveFileNameA(LPOPENFILENAMEA dialog);
DWORD WINAPI CommDlgExtendedError();

// Painting
HDC WINAPI BeginPaint(HWND window, LPPAINTSTRUCT paint);
BOOL WINAPI EndPaint(HWND window, const PAINTSTRUCT* paint);
HDC WINAPI GetDC(HWND window);
int WINAPI ReleaseDC(HWND window, HDC dc);
BOOL WINAPI UpdateWindow(HWND window);
BOOL WINAPI InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL WINAPI ValidateRect(HWND window, const RECT* rect);
BOOL WINAPI RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
DWORD WINAPI GetSysColor(int index);
HBRUSH WINAPI GetSysColorBrush(int index);
int WINAPI FillRect(HDC dc, const RECT* rect, HBRUSH brush);
int WINAPI DrawTextA(HDC dc, LPCSTR text, int length, LPRECT rect, UINT format);
HICON WINAPI LoadIconA(HINSTANCE instance, LPCSTR name);
HCURSOR WINAPI LoadCursorA(HINSTANCE instance, LPCSTR name);

// Device contexts, bitmaps and fonts
HDC WINAPI CreateCompatibleDC(HDC dc);
BOOL WINAPI DeleteDC(HDC dc);
HGDIOBJ WINAPI SelectObject(HDC dc, HGDIOBJ object);
BOOL WINAPI DeleteObject(HGDIOBJ object);
int WINAPI GetObjectA(HANDLE object, int size, LPVOID buffer);
HBITMAP WINAPI CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits,
                                HANDLE section, DWORD offset);
HBITMAP WINAPI CreateCompatibleBitmap(HDC dc, int width, int height);
BOOL WINAPI BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX,
                   int sourceY, DWORD operation);
BOOL WINAPI StretchBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX,
                       int sourceY, int sourceWidth, int sourceHeight, DWORD operation);
int WINAPI SetStretchBltMode(HDC dc, int mode);
COLORREF WINAPI GetPixel(HDC dc, int x, int y);
HFONT WINAPI CreateFontA(int height, int width, int escapement, int orientation, int weight,
                         DWORD italic, DWORD underline, DWORD strikeOut, DWORD charSet,
                         DWORD outPrecision, DWORD clipPrecision, DWORD quality,
                         DWORD pitchAndFamily, LPCSTR faceName);
HFONT WINAPI CreateFontIndirectA(const LOGFONTA* font);
COLORREF WINAPI SetTextColor(HDC dc, COLORREF colour);
int WINAPI SetBkMode(HDC dc, int mode);

// Clipboard and shell
BOOL WINAPI OpenClipboard(HWND window);
BOOL WINAPI CloseClipboard();
BOOL WINAPI EmptyClipboard();
HANDLE WINAPI SetClipboardData(UINT format, HANDLE data);
HANDLE WINAPI GetClipboardData(UINT format);
HINSTANCE WINAPI ShellExecuteA(HWND window, LPCSTR verb, LPCSTR file, LPCSTR parameters,
                               LPCSTR directory, INT show);

// Files and the process
HANDLE WINAPI CreateFileA(LPCSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                          DWORD disposition, DWORD flags, HANDLE templateFile);
BOOL WINAPI ReadFile(HANDLE file, LPVOID buffer, DWORD count, LPDWORD transferred,
                     LPOVERLAPPED overlapped);
BOOL WINAPI WriteFile(HANDLE file, LPCVOID buffer, DWORD count, LPDWORD transferred,
                      LPOVERLAPPED overlapped);
DWORD WINAPI GetFileSize(HANDLE file, LPDWORD high);
DWORD WINAPI SetFilePointer(HANDLE file, LONG distance, PLONG high, DWORD method);
BOOL WINAPI CloseHandle(HANDLE handle);
DWORD WINAPI GetFileAttributesA(LPCSTR path);
BOOL WINAPI SetCurrentDirectoryA(LPCSTR path);
DWORD WINAPI GetCurrentDirectoryA(DWORD size, LPSTR buffer);
DWORD WINAPI GetFullPathNameA(LPCSTR path, DWORD size, LPSTR buffer, LPSTR* fileName);
int WINAPI lstrcmpiA(LPCSTR one, LPCSTR other);
DWORD WINAPI GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);
HMODULE WINAPI GetModuleHandleA(LPCSTR name);
DWORD WINAPI GetCurrentThreadId();
[[noreturn]] VOID WINAPI ExitProcess(UINT exitCode);
DWORD WINAPI GetLastError();
VOID WINAPI SetLastError(DWORD error);
LPSTR WINAPI lstrcpyA(LPSTR target, LPCSTR source);
}
