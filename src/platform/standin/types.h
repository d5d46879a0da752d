// The stand-in's Win32 types: the 64-bit forms, LONG, DWORD and UINT 32 bits wide, everything that
// can hold a pointer 64. Only what the editor and its tests use is here, down to the fields.
#pragma once

#include <cstdint>

#define CALLBACK
#define WINAPI

typedef void VOID;
typedef unsigned char BYTE;
typedef unsigned short WORD;
typedef short SHORT;
typedef int INT;
typedef int BOOL;
typedef int32_t LONG;
typedef uint32_t DWORD;
typedef unsigned int UINT;
typedef uint32_t ULONG;
typedef uint16_t ATOM;
typedef intptr_t INT_PTR;
typedef uintptr_t UINT_PTR;
typedef intptr_t LONG_PTR;
typedef uintptr_t ULONG_PTR;
typedef ULONG_PTR DWORD_PTR;
typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef DWORD COLORREF;

typedef void* LPVOID;
typedef const void* LPCVOID;
typedef char* LPSTR;
typedef const char* LPCSTR;
typedef int* LPINT;
typedef LONG* PLONG;
typedef DWORD* LPDWORD;

typedef void* HANDLE;
typedef void* HGDIOBJ;

// Handles of different kinds are different types, as under STRICT.
#define STANDIN_DECLARE_HANDLE(name) \
  struct name##__ {                  \
    int unused;                      \
  };                                 \
  typedef struct name##__* name
STANDIN_DECLARE_HANDLE(HWND);
STANDIN_DECLARE_HANDLE(HMENU);
STANDIN_DECLARE_HANDLE(HDC);
STANDIN_DECLARE_HANDLE(HBITMAP);
STANDIN_DECLARE_HANDLE(HBRUSH);
STANDIN_DECLARE_HANDLE(HFONT);
STANDIN_DECLARE_HANDLE(HICON);
STANDIN_DECLARE_HANDLE(HRGN);
STANDIN_DECLARE_HANDLE(HINSTANCE);
#undef STANDIN_DECLARE_HANDLE
typedef HICON HCURSOR;
typedef HINSTANCE HMODULE;

typedef LRESULT(CALLBACK* WNDPROC)(HWND, UINT, WPARAM, LPARAM);
typedef INT_PTR(CALLBACK* DLGPROC)(HWND, UINT, WPARAM, LPARAM);
typedef VOID(CALLBACK* TIMERPROC)(HWND, UINT, UINT_PTR, DWORD);
typedef BOOL(CALLBACK* WNDENUMPROC)(HWND, LPARAM);
typedef UINT_PTR(CALLBACK* LPOFNHOOKPROC)(HWND, UINT, WPARAM, LPARAM);

typedef struct tagPOINT {
  LONG x;
  LONG y;
} POINT;

typedef struct tagSIZE {
  LONG cx;
  LONG cy;
} SIZE;

typedef struct tagRECT {
  LONG left;
  LONG top;
  LONG right;
  LONG bottom;
} RECT, *LPRECT;

typedef struct tagMSG {
  HWND hwnd;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
  DWORD time;
  POINT pt;
} MSG, *LPMSG;

typedef struct tagWNDCLASSEXA {
  UINT cbSize;
  UINT style;
  WNDPROC lpfnWndProc;
  HINSTANCE hInstance;
  HICON hIcon;
  HCURSOR hCursor;
  HBRUSH hbrBackground;
  LPCSTR lpszMenuName;
  LPCSTR lpszClassName;
  HICON hIconSm;
} WNDCLASSEXA;

typedef struct tagPAINTSTRUCT {
  HDC hdc;
  BOOL fErase;
  RECT rcPaint;
} PAINTSTRUCT, *LPPAINTSTRUCT;

typedef struct tagMINMAXINFO {
  POINT ptMaxSize;
  POINT ptMinTrackSize;
  POINT ptMaxTrackSize;
} MINMAXINFO;

typedef struct tagNMHDR {
  HWND hwndFrom;
  UINT code;
} NMHDR;

typedef struct tagBITMAP {
  LONG bmWidth;
  LONG bmHeight;
  WORD bmBitsPixel;
} BITMAP;

typedef struct tagBITMAPINFOHEADER {
  DWORD biSize;
  LONG biWidth;
  LONG biHeight;
  WORD biPlanes;
  WORD biBitCount;
  DWORD biCompression;
  DWORD biSizeImage;
} BITMAPINFOHEADER;

typedef struct tagBITMAPINFO {
  BITMAPINFOHEADER bmiHeader;
} BITMAPINFO;

typedef struct tagLOGFONTA {
  LONG lfHeight;
  BYTE lfCharSet;
} LOGFONTA;

typedef struct _SECURITY_ATTRIBUTES* LPSECURITY_ATTRIBUTES;
typedef struct _OVERLAPPED* LPOVERLAPPED;

typedef struct tagOFNA {
  DWORD lStructSize;
  HWND hwndOwner;
  HINSTANCE hInstance;
  LPCSTR lpstrFilter;
  LPSTR lpstrFile;
  DWORD nMaxFile;
  LPCSTR lpstrInitialDir;
  LPCSTR lpstrTitle;
  DWORD Flags;
  LPCSTR lpstrDefExt;
  LPARAM lCustData;
  LPOFNHOOKPROC lpfnHook;
  LPCSTR lpTemplateName;
} OPENFILENAMEA, *LPOPENFILENAMEA;

typedef struct _OFNOTIFYA {
  NMHDR hdr;
} OFNOTIFYA;

typedef struct tagLVITEMA {
  LPSTR pszText;
  int cchTextMax;
} LVITEMA;
