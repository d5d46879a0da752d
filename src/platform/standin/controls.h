// The window procedures of the controls, one file each.
#pragma once

#include "platform/win32.h"

namespace standin {

LRESULT ButtonProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT EditProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT StaticProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT ListBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT ComboBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT StatusBarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT TrackbarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT UpDownProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT ProgressBarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

// What every control does with messages of no interest to it: it keeps its font, and has
// DefWindowProcA do the rest.
LRESULT DefaultControlProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace standin
