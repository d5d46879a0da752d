// The stand-in's Win32 constants. They are macros as on Windows, and the Windows build's tests hold
// each of them against the platform's own value. The resource script takes its words from here.
#pragma once

#ifndef RC_INVOKED

// As on Windows, where these macros come from a system header, their casts are not our warnings.
#pragma GCC system_header

#include <cstddef>

#include "platform/standin/types.h"
#endif

// Values and words
#define FALSE 0
#define TRUE 1
#define LOWORD(value) ((WORD)((DWORD_PTR)(value)&0xFFFF))
#define HIWORD(value) ((WORD)(((DWORD_PTR)(value) >> 16) & 0xFFFF))
#define MAKELONG(low, high) ((LONG)(((WORD)(low)) | ((DWORD)((WORD)(high))) << 16))
#define MAKEWPARAM(low, high) ((WPARAM)(DWORD)MAKELONG(low, high))
#define MAKELPARAM(low, high) ((LPARAM)(DWORD)MAKELONG(low, high))
#define MAKEINTRESOURCEA(id) ((LPSTR)((ULONG_PTR)((WORD)(id))))
#define RGB(red, green, blue) \
  ((COLORREF)(((BYTE)(red) | ((WORD)((BYTE)(green)) << 8)) | (((DWORD)(BYTE)(blue)) << 16)))

// Handles and names made of numbers
#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)-1)
#define HWND_TOP ((HWND)0)
#define HWND_BOTTOM ((HWND)1)
#define WC_DIALOG (MAKEINTRESOURCEA(0x8002))
#define IDI_HAND MAKEINTRESOURCEA(32513)
#define IDI_QUESTION MAKEINTRESOURCEA(32514)
#define IDI_EXCLAMATION MAKEINTRESOURCEA(32515)
#define IDC_ARROW MAKEINTRESOURCEA(32512)
#define IDC_HAND MAKEINTRESOURCEA(32649)
#define STATUSCLASSNAMEA "msctls_statusbar32"
#define TRACKBAR_CLASSA "msctls_trackbar32"
#define UPDOWN_CLASSA "msctls_updown32"
#define PROGRESS_CLASSA "msctls_progress32"

// Window messages
#define WM_CREATE 1
#define WM_DESTROY 2
#define WM_SIZE 5
#define WM_ACTIVATE 6
#define WM_SETFOCUS 7
#define WM_KILLFOCUS 8
#define WM_ENABLE 0x0A
#define WM_SETTEXT 0x0C
#define WM_GETTEXT 0x0D
#define WM_GETTEXTLENGTH 0x0E
#define WM_PAINT 0x0F
#define WM_CLOSE 0x10
#define WM_QUIT 0x12
#define WM_ERASEBKGND 0x14
#define WM_SHOWWINDOW 0x18
#define WM_GETMINMAXINFO 0x24
#define WM_SETFONT 0x30
#define WM_GETFONT 0x31
#define WM_NOTIFY 0x4E
#define WM_SETICON 0x80
#define WM_NCCREATE 0x81
#define WM_NCDESTROY 0x82
#define WM_GETDLGCODE 0x87
#define WM_KEYDOWN 0x0100
#define WM_KEYUP 0x0101
#define WM_CHAR 0x0102
#define WM_INITDIALOG 0x0110
#define WM_COMMAND 0x0111
#define WM_TIMER 0x0113
#define WM_HSCROLL 0x0114
#define WM_VSCROLL 0x0115
#define WM_MOUSEMOVE 0x0200
#define WM_LBUTTONDOWN 0x0201
#define WM_LBUTTONUP 0x0202
#define WM_RBUTTONDOWN 0x0204
#define WM_RBUTTONUP 0x0205
#define WM_CAPTURECHANGED 0x0215
#define WM_CUT 0x0300
#define WM_PASTE 0x0302
#define WM_CLEAR 0x0303
#define WM_USER 0x0400
#define WA_INACTIVE 0
#define WA_ACTIVE 1
#define SIZE_RESTORED 0
#define MK_LBUTTON 1
#define ICON_SMALL 0

// Window and class styles
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_VISIBLE 0x10000000
#define WS_DISABLED 0x08000000
#define WS_CLIPSIBLINGS 0x04000000
#define WS_CLIPCHILDREN 0x02000000
#define WS_CAPTION 0x00C00000
#define WS_BORDER 0x00800000
#define WS_DLGFRAME 0x00400000
#define WS_VSCROLL 0x00200000
#define WS_HSCROLL 0x00100000
#define WS_SYSMENU 0x00080000
#define WS_THICKFRAME 0x00040000
#define WS_GROUP 0x00020000
#define WS_TABSTOP 0x00010000
#define WS_MAXIMIZEBOX 0x00010000
#define WS_OVERLAPPEDWINDOW 0x00CF0000
#define WS_EX_DLGMODALFRAME 1
#define WS_EX_WINDOWEDGE 0x0100
#define WS_EX_CLIENTEDGE 0x0200
#define WS_EX_CONTROLPARENT 0x00010000
#define WS_EX_STATICEDGE 0x00020000
#define WS_EX_TRANSPARENT 0x20
#define CS_VREDRAW 1
#define CS_HREDRAW 2
#define CS_DBLCLKS 8
#define CW_USEDEFAULT ((int)0x80000000)

// Windows: showing, placing, painting, words
#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_SHOWMAXIMIZED 3
#define SW_SHOW 5
#define SW_SHOWNA 8
#define SWP_NOSIZE 1
#define SWP_NOMOVE 2
#define SWP_NOZORDER 4
#define SWP_NOACTIVATE 0x10
#define SWP_FRAMECHANGED 0x20
#define SWP_HIDEWINDOW 0x80
#define SWP_NOCOPYBITS 0x0100
#define RDW_INVALIDATE 1
#define RDW_ERASE 4
#define RDW_ALLCHILDREN 0x80
#define RDW_FRAME 0x0400
#define AW_HIDE 0x00010000
#define AW_BLEND 0x00080000
#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWLP_WNDPROC (-4)
#define GWLP_USERDATA (-21)
#define DWLP_MSGRESULT 0
#define DWLP_USER 0x10
#define PM_REMOVE 1

// Scroll bars
#define SB_HORZ 0
#define SB_VERT 1
#define SB_LINELEFT 0
#define SB_LINERIGHT 1
#define SB_PAGELEFT 2
#define SB_PAGERIGHT 3
#define SB_THUMBPOSITION 4
#define SB_THUMBTRACK 5
#define SB_LEFT 6
#define SB_RIGHT 7
#define SB_ENDSCROLL 8

// Menus
#define MF_BYCOMMAND 0
#define MF_BYPOSITION 0x0400
#define MF_ENABLED 0
#define MF_GRAYED 1
#define MF_DISABLED 2
#define MF_UNCHECKED 0
#define MF_CHECKED 8
#define MF_POPUP 0x10
#define MF_SEPARATOR 0x0800
#define MFT_RADIOCHECK 0x0200

// Message boxes and sounds
#define MB_OK 0
#define MB_YESNO 4
#define MB_ICONHAND 0x10
#define MB_ICONERROR 0x10
#define MB_ICONQUESTION 0x20
#define MB_ICONEXCLAMATION 0x30
#define IDOK 1
#define IDCANCEL 2
#define IDYES 6
#define IDNO 7

// Keys
#define VK_BACK 8
#define VK_TAB 9
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_CONTROL 0x11
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E
#define KEYEVENTF_KEYUP 2

// Dialogs
#define DS_3DLOOK 4
#define DS_SETFONT 0x40
#define DS_MODALFRAME 0x80
#define DS_CONTROL 0x0400
#define DS_CENTER 0x0800
#define DLGC_WANTTAB 2
#define DLGC_WANTALLKEYS 4
#define DLGC_WANTMESSAGE 4
#define DLGC_HASSETSEL 8
#define DLGC_DEFPUSHBUTTON 0x10
#define DLGC_UNDEFPUSHBUTTON 0x20
#define DLGC_RADIOBUTTON 0x40

// Buttons
#define BS_PUSHBUTTON 0
#define BS_DEFPUSHBUTTON 1
#define BS_AUTOCHECKBOX 3
#define BS_AUTORADIOBUTTON 9
#define BS_GROUPBOX 7
#define BS_TYPEMASK 0x0F
#define BS_MULTILINE 0x2000
#define BM_GETCHECK 0xF0
#define BM_SETCHECK 0xF1
#define BM_CLICK 0xF5
#define BST_UNCHECKED 0
#define BST_CHECKED 1
#define BN_CLICKED 0

// Edit controls
#define ES_LEFT 0
#define ES_MULTILINE 4
#define ES_AUTOHSCROLL 0x80
#define ES_READONLY 0x0800
#define ES_NUMBER 0x2000
#define EM_GETSEL 0xB0
#define EM_SETSEL 0xB1
#define EM_LIMITTEXT 0xC5
#define EN_CHANGE 0x0300

// Static controls
#define SS_LEFT 0
#define SS_CENTER 1
#define SS_ICON 3
#define SS_BLACKRECT 4
#define SS_ETCHEDFRAME 0x12
#define SS_CENTERIMAGE 0x0200
#define SS_SUNKEN 0x1000
#define SS_LEFTNOWORDWRAP 0x0C
#define STM_SETICON 0x0170
#define STM_GETICON 0x0171

// List boxes
#define LBS_NOTIFY 1
#define LBS_SORT 2
#define LB_ADDSTRING 0x0180
#define LB_INSERTSTRING 0x0181
#define LB_SETCURSEL 0x0186
#define LB_GETCURSEL 0x0188
#define LB_GETTEXT 0x0189
#define LB_GETTEXTLEN 0x018A
#define LB_GETCOUNT 0x018B
#define LB_GETITEMDATA 0x0199
#define LB_SETITEMDATA 0x019A
#define LBN_SELCHANGE 1
#define LB_ERR (-1)

// Combo boxes
#define CBS_DROPDOWNLIST 3
#define CBS_SIMPLE 1
#define CBS_SORT 0x0100
#define CB_ADDSTRING 0x0143
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_GETLBTEXT 0x0148
#define CB_GETLBTEXTLEN 0x0149
#define CB_SETCURSEL 0x014E
#define CB_GETITEMDATA 0x0150
#define CB_SETITEMDATA 0x0151
#define CBN_SELCHANGE 1
#define CB_ERR (-1)

// Status bars
#define CCS_BOTTOM 3
#define SBARS_SIZEGRIP 0x0100
#define SB_SETTEXTA 0x0401
#define SB_GETTEXTA 0x0402
#define SB_SETPARTS 0x0404

// Trackbars
#define TBS_BOTH 8
#define TBS_NOTICKS 0x10
#define TBM_GETPOS 0x0400
#define TBM_GETRANGEMIN 0x0401
#define TBM_GETRANGEMAX 0x0402
#define TBM_SETPOS 0x0405
#define TBM_SETRANGE 0x0406

// Up-down controls
#define UDS_SETBUDDYINT 2
#define UDS_AUTOBUDDY 0x10
#define UDS_ARROWKEYS 0x20
#define UDS_NOTHOUSANDS 0x80
#define UDM_SETRANGE 0x0465

// Progress bars
#define PBM_SETRANGE 0x0401
#define PBM_SETSTEP 0x0404
#define PBM_STEPIT 0x0405

// File dialogs
#define OFN_HIDEREADONLY 4
#define OFN_ENABLEHOOK 0x20
#define OFN_ENABLETEMPLATE 0x40
#define OFN_FILEMUSTEXIST 0x1000
#define OFN_EXPLORER 0x00080000
#define OFN_ENABLESIZING 0x00800000
#define CDM_GETFILEPATH 0x0465
#define CDM_GETFOLDERPATH 0x0466
#define LVM_GETNEXTITEM 0x100C
#define LVM_GETITEMTEXTA 0x102D
#define LVNI_SELECTED 2
#define CDM_SETCONTROLTEXT 0x0468
#define CDN_INITDONE 0xFFFFFDA7
#define CDN_SELCHANGE 0xFFFFFDA6
#define FNERR_BUFFERTOOSMALL 0x3003
#define cmb13 0x047C
#define edt1 0x0480

// Clipboard, colours, cursors
#define CF_BITMAP 2
#define COLOR_WINDOW 5
#define COLOR_WINDOWTEXT 8
#define COLOR_3DFACE 15
#define COLOR_BTNFACE 15

// GDI
#define BI_RGB 0
#define DIB_RGB_COLORS 0
#define SRCCOPY 0x00CC0020
#define COLORONCOLOR 3
#define TRANSPARENT 1
#define OPAQUE 2
#define CLR_INVALID 0xFFFFFFFF
#define DT_CENTER 1
#define DT_VCENTER 4
#define DT_SINGLELINE 0x20
#define FW_BOLD 700
#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define OUT_DEFAULT_PRECIS 0
#define CLIP_DEFAULT_PRECIS 0
#define DEFAULT_QUALITY 0
#define VARIABLE_PITCH 2

// Files and errors
#define MAX_PATH 260
#define GENERIC_READ 0x80000000
#define GENERIC_WRITE 0x40000000
#define FILE_SHARE_READ 1
#define FILE_SHARE_WRITE 2
#define CREATE_ALWAYS 2
#define OPEN_EXISTING 3
#define FILE_ATTRIBUTE_READONLY 1
#define FILE_ATTRIBUTE_DIRECTORY 0x10
#define FILE_ATTRIBUTE_NORMAL 0x80
#define INVALID_FILE_ATTRIBUTES 0xFFFFFFFF
#define INVALID_FILE_SIZE 0xFFFFFFFF
#define INVALID_SET_FILE_POINTER 0xFFFFFFFF
#define FILE_BEGIN 0
#define FILE_CURRENT 1
#define FILE_END 2
#define ERROR_SUCCESS 0
#define ERROR_FILE_NOT_FOUND 2
#define ERROR_INVALID_WINDOW_HANDLE 1400
