#include <algorithm>
#include <cctype>

#include "platform/standin/control.h"

namespace standin {
namespace {

class Edit : public Control {
 public:
  using Control::Control;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  LRESULT SetText(const char* text);
  void Select(size_t start, size_t end);
  void Replace(std::string text);
  void Delete(bool before);
  void Character(char letter);
  void Key(WPARAM key);
  void MoveToLine(bool above);

  size_t limit_ = 30000;
  size_t start_ = 0;  // of the selection
  size_t end_ = 0;    // where the caret stands
};

// Setting the text is not held to the limit, and only a single line tells its parent.
LRESULT Edit::SetText(const char* text) {
  window_.text = text ? text : "";
  Select(0, 0);
  Repaint();
  if (!Has(ES_MULTILINE)) Tell(EN_CHANGE);
  return TRUE;
}

void Edit::Select(size_t start, size_t end) {
  start_ = std::min(start, window_.text.size());
  end_ = std::min(end, window_.text.size());
  if (start_ > end_) std::swap(start_, end_);
}

// Puts a text in the selection's place, as far as the limit allows, and tells the parent.
void Edit::Replace(std::string text) {
  const size_t kept = window_.text.size() - (end_ - start_);
  if (kept + text.size() > limit_) text.resize(limit_ > kept ? limit_ - kept : 0);
  window_.text.replace(start_, end_ - start_, text);
  Select(start_ + text.size(), start_ + text.size());
  Repaint();
  Tell(EN_CHANGE);
}

// Deletes the selection, or without one the character before or behind the caret.
void Edit::Delete(bool before) {
  if (start_ == end_) {
    if (before ? end_ == 0 : end_ == window_.text.size()) return;
    Select(before ? end_ - 1 : end_, before ? end_ : end_ + 1);
  }
  Replace("");
}

void Edit::Character(char letter) {
  if (Has(ES_READONLY)) return;
  if (letter == '\b') return Delete(true);
  const auto code = static_cast<unsigned char>(letter);
  if (code < ' ' || (Has(ES_NUMBER) && !std::isdigit(code))) return;
  Replace(std::string(1, letter));
}

void Edit::Key(WPARAM key) {
  if (key == VK_DELETE && !Has(ES_READONLY)) Delete(false);
  if (key == VK_LEFT) Select(end_ ? end_ - 1 : 0, end_ ? end_ - 1 : 0);
  if (key == VK_RIGHT) Select(end_ + 1, end_ + 1);
  if (key == VK_UP || key == VK_DOWN) MoveToLine(key == VK_UP);
}

// Up and down take the caret to the beginning of the neighbouring line, if there is one.
void Edit::MoveToLine(bool above) {
  const std::string& text = window_.text;
  const auto lineOf = [&](size_t place) { return place ? text.rfind('\n', place - 1) + 1 : 0; };
  const size_t end = text.find('\n', end_);
  const size_t target = above ? lineOf(lineOf(end_) ? lineOf(end_) - 1 : 0)
                              : (end == std::string::npos ? lineOf(end_) : end + 1);
  Select(target, target);
}

LRESULT Edit::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_HASSETSEL | (Has(ES_MULTILINE) ? DLGC_WANTALLKEYS : 0);
    case WM_SETTEXT:
      return SetText(reinterpret_cast<const char*>(lParam));
    case WM_CHAR:
      Character(static_cast<char>(wParam));
      return 0;
    case WM_KEYDOWN:
      Key(wParam);
      return 0;
    case EM_SETSEL:
      Select(static_cast<size_t>(wParam), static_cast<size_t>(lParam));
      return 0;
    case EM_GETSEL:
      if (wParam) *reinterpret_cast<DWORD*>(wParam) = static_cast<DWORD>(start_);
      if (lParam) *reinterpret_cast<DWORD*>(lParam) = static_cast<DWORD>(end_);
      return MAKELONG(start_, end_);
    case EM_LIMITTEXT:
      limit_ = static_cast<size_t>(wParam);
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(window_.handle);
      return 0;
    default:
      return Control::Handle(message, wParam, lParam);
  }
}

}  // namespace

LRESULT EditProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<Edit>(handle, message, wParam, lParam);
}

}  // namespace standin
