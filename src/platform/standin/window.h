// What stands behind a window handle, and what the stand-in's own files do with windows.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/standin/gdi.h"
#include "platform/win32.h"

namespace standin {

struct WindowClass {
  std::string name;
  WNDPROC proc = nullptr;
  HBRUSH background = nullptr;
  LPCSTR menu = nullptr;  // a resource number, or null
};

class Control;

// What a dialog keeps besides its window.
struct DialogState {
  DLGPROC proc = nullptr;
  LONG_PTR result = 0;  // DWLP_MSGRESULT
  LONG_PTR user = 0;    // DWLP_USER
  bool ended = false;
  INT_PTR endResult = 0;
  bool ownerEnabled = false;  // the owner was enabled before and is again afterwards
  int defaultButton = 0;
  HWND savedFocus = nullptr;
  HFONT font = nullptr;
};

struct ScrollBar {
  int minimum = 0;
  int maximum = 100;
  int position = 0;
};

struct Window {
  HWND handle = nullptr;
  std::shared_ptr<WindowClass> windowClass;
  WNDPROC proc = nullptr;
  DWORD style = 0;
  DWORD exStyle = 0;
  LONG_PTR id = 0;
  LONG_PTR userData = 0;
  HINSTANCE instance = nullptr;
  HMENU menu = nullptr;
  HWND parent = nullptr;       // parent of a child, owner of any other window
  std::vector<HWND> children;  // topmost first; the order is the tab order too
  std::string text;
  HICON smallIcon = nullptr;
  HICON bigIcon = nullptr;
  HFONT font = nullptr;

  RECT frame{};            // in the parent's client area, or on the screen
  RECT client{};           // the client area, in the same coordinates as the frame
  bool needsSize = false;  // an overlapped window learns its size when it is first shown

  RECT update{};  // what is to be painted, in client coordinates
  bool erase = false;
  std::optional<Pixels> pixels;
  ScrollBar scrollBars[2];

  std::shared_ptr<Control> control;
  std::function<bool(WPARAM key)> keyFilter;  // takes keys from the control; true: taken
  std::unique_ptr<DialogState> dialog;
  bool destroying = false;

  bool IsChild() const { return style & WS_CHILD; }
  int ClientWidth() const { return client.right - client.left; }
  int ClientHeight() const { return client.bottom - client.top; }
};
using WindowPtr = std::shared_ptr<Window>;

// The window, or null (and ERROR_INVALID_WINDOW_HANDLE) for a handle that is stale or never was
// one.
WindowPtr FindWindowPtr(HWND window);

// Top-level windows, topmost first.
std::vector<HWND>& TopLevelWindows();

// The windows among which this one stands: its parent's children or the top-level windows.
std::vector<HWND>& SiblingsOf(const Window& window);

// The controls from one with WS_GROUP up to the next such one among which this one stands.
std::vector<HWND> GroupOf(const Window& control);

// The top-level window above the window, itself perhaps.
WindowPtr RootOf(HWND window);
bool IsInside(HWND ancestor, HWND window);

std::shared_ptr<WindowClass> FindClass(LPCSTR name);

// Recomputes the client area from the frame and the styles.
void UpdateClient(Window& window);

// Brings the frame of a new window within the limits that it sets.
void ConstrainCreation(Window& window);

// A frame of that size in the middle of the screen.
RECT CentredOnScreen(int width, int height);

// Sends WM_SIZE with what the window has now.
void SendSize(const Window& window);

// A client point of the window on the screen.
POINT ClientOrigin(const Window& window);

// Marks a part of the client area (all of it for null) for painting.
void Invalidate(Window& window, const RECT* rect, bool erase);

// The window that is to be painted next, or null.
WindowPtr NextToPaint();

// The picture of the client area; it follows the client area's size.
Pixels& ClientPixels(Window& window);

// Makes the window active and gives it the keyboard, with the messages that belong to it.
void Activate(HWND window);
// Lets go of whatever points at a window that is hidden, disabled or destroyed.
void ForgetWindow(HWND window);

// Takes the next message, without waiting: posted ones first, then WM_QUIT, WM_PAINT and timers.
bool TakeMessage(MSG& message);
// Drops what is posted to a window.
void ForgetMessages(HWND window);
// Lets the thread's clock, which runs only while the program waits, go on.
void PassTime(DWORD milliseconds);

}  // namespace standin
