#include <algorithm>
#include <cctype>
#include <climits>

#include "platform/standin/controls.h"
#include "platform/standin/window.h"

namespace standin {
namespace {

constexpr size_t kLimitAtFirst = 30000;

struct EditState : ControlState {
  size_t limit = kLimitAtFirst;
  size_t selectionStart = 0;
  size_t selectionEnd = 0;  // the caret stands at the end
};

bool IsMultiLine(const Window& edit) { return edit.style & ES_MULTILINE; }
bool IsReadOnly(const Window& edit) { return edit.style & ES_READONLY; }

void NotifyChange(const Window& edit) {
  NotifyParent(edit, EN_UPDATE);
  NotifyParent(edit, EN_CHANGE);
}

void Select(Window& edit, size_t start, size_t end) {
  EditState& state = StateOf<EditState>(edit);
  state.selectionStart = std::min(start, edit.text.size());
  state.selectionEnd = std::min(end, edit.text.size());
}

// Puts a text in the selection's place, as far as the limit allows, and tells the parent.
void Replace(Window& edit, std::string text) {
  EditState& state = StateOf<EditState>(edit);
  const size_t start = std::min(state.selectionStart, state.selectionEnd);
  const size_t count = std::max(state.selectionStart, state.selectionEnd) - start;
  if (count == 0 && text.empty()) return;
  const size_t kept = edit.text.size() - count;
  if (kept + text.size() > state.limit) text.resize(state.limit > kept ? state.limit - kept : 0);
  edit.text.replace(start, count, text);
  Select(edit, start + text.size(), start + text.size());
  InvalidateRect(edit.handle, nullptr, TRUE);
  NotifyChange(edit);
}

// Setting the text is not held to the limit, and only a single line tells its parent.
LRESULT SetText(Window& edit, LPARAM text) {
  edit.text = text ? reinterpret_cast<const char*>(text) : "";
  Select(edit, 0, 0);
  InvalidateRect(edit.handle, nullptr, TRUE);
  if (!IsMultiLine(edit)) NotifyChange(edit);
  return TRUE;
}

// The caret's neighbouring places; the two characters of a line break are one step.
size_t PlaceBefore(const std::string& text, size_t caret) {
  if (caret >= 2 && text.compare(caret - 2, 2, "\r\n") == 0) return caret - 2;
  return caret > 0 ? caret - 1 : 0;
}

size_t PlaceAfter(const std::string& text, size_t caret) {
  return text.compare(caret, 2, "\r\n") == 0 ? caret + 2 : std::min(caret + 1, text.size());
}

// Deletes the selection, or without one the character before or behind the caret.
void Delete(Window& edit, bool before) {
  if (IsReadOnly(edit)) return;
  EditState& state = StateOf<EditState>(edit);
  if (state.selectionStart == state.selectionEnd) {
    const size_t caret = state.selectionEnd;
    if (before && caret == 0) return;
    Select(edit, before ? PlaceBefore(edit.text, caret) : caret,
           before ? caret : PlaceAfter(edit.text, caret));
  }
  Replace(edit, "");
}

void Character(Window& edit, char letter) {
  if (letter == '\b') return Delete(edit, true);
  if (IsReadOnly(edit)) return;
  const auto code = static_cast<unsigned char>(letter);
  if (code < ' ' || code == 127) return;
  if ((edit.style & ES_NUMBER) && !std::isdigit(code)) return;
  Replace(edit, std::string(1, letter));
}

// The same column one line up or down, as far as that line reaches.
size_t LineAbove(const std::string& text, size_t caret) {
  if (caret == 0) return 0;
  const size_t before = text.rfind('\n', caret - 1);
  if (before == std::string::npos) return caret;
  const size_t above = before == 0 ? std::string::npos : text.rfind('\n', before - 1);
  const size_t start = above == std::string::npos ? 0 : above + 1;
  return std::min(start + caret - (before + 1), before > 0 ? before - 1 : 0);
}

size_t LineBelow(const std::string& text, size_t caret) {
  const size_t end = text.find('\n', caret);
  if (end == std::string::npos) return caret;
  const size_t before = caret == 0 ? std::string::npos : text.rfind('\n', caret - 1);
  const size_t column = caret - (before == std::string::npos ? 0 : before + 1);
  const size_t next = text.find('\r', end + 1);
  return std::min(end + 1 + column, next == std::string::npos ? text.size() : next);
}

void MoveCaret(Window& edit, size_t place) { Select(edit, place, place); }

void Key(Window& edit, WPARAM key) {
  const size_t caret = StateOf<EditState>(edit).selectionEnd;
  switch (key) {
    case VK_DELETE:
      return Delete(edit, false);
    case VK_LEFT:
      return MoveCaret(edit, PlaceBefore(edit.text, caret));
    case VK_RIGHT:
      return MoveCaret(edit, PlaceAfter(edit.text, caret));
    case VK_UP:
      return MoveCaret(edit, IsMultiLine(edit) ? LineAbove(edit.text, caret) : caret);
    case VK_DOWN:
      return MoveCaret(edit, IsMultiLine(edit) ? LineBelow(edit.text, caret) : caret);
    case VK_HOME:
      return MoveCaret(edit, 0);
    case VK_END:
      return MoveCaret(edit, edit.text.size());
    case VK_ESCAPE:
      // Keys reach a box of several lines before its dialog, which is closed from here.
      if (IsMultiLine(edit)) PostMessageA(edit.parent, WM_CLOSE, 0, 0);
      return;
    case VK_TAB:
      if (IsMultiLine(edit))
        PostMessageA(edit.parent, WM_NEXTDLGCTL, (GetAsyncKeyState(VK_SHIFT) & 0x8000) != 0, 0);
      return;
    default:
      return;
  }
}

LRESULT GetSelection(Window& edit, WPARAM wParam, LPARAM lParam) {
  const EditState& state = StateOf<EditState>(edit);
  const auto start = static_cast<DWORD>(std::min(state.selectionStart, state.selectionEnd));
  const auto end = static_cast<DWORD>(std::max(state.selectionStart, state.selectionEnd));
  if (wParam) *reinterpret_cast<DWORD*>(wParam) = start;
  if (lParam) *reinterpret_cast<DWORD*>(lParam) = end;
  return MAKELONG(start, end);
}

}  // namespace

LRESULT EditProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto edit = FindWindowPtr(handle);
  if (!edit) return 0;
  EditState& state = StateOf<EditState>(*edit);
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS |
             (IsMultiLine(*edit) ? DLGC_WANTALLKEYS : 0);
    case WM_SETTEXT:
      return SetText(*edit, lParam);
    case WM_CHAR:
      Character(*edit, static_cast<char>(wParam));
      return 0;
    case WM_KEYDOWN:
      Key(*edit, wParam);
      return 0;
    case WM_CLEAR:
      if (state.selectionStart != state.selectionEnd) Delete(*edit, false);
      return 0;
    case EM_SETSEL:
      Select(*edit, static_cast<size_t>(wParam), static_cast<size_t>(lParam));
      return 0;
    case EM_GETSEL:
      return GetSelection(*edit, wParam, lParam);
    case EM_LIMITTEXT:
      state.limit = wParam ? static_cast<size_t>(wParam) : INT_MAX;
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(handle);
      return 0;
    case WM_SETFOCUS:
      NotifyParent(*edit, EN_SETFOCUS);
      return 0;
    case WM_KILLFOCUS:
      NotifyParent(*edit, EN_KILLFOCUS);
      return 0;
    default:
      return DefaultControlProc(handle, message, wParam, lParam);
  }
}

}  // namespace standin
