#include <strings.h>

#include <algorithm>
#include <cstring>

#include "platform/standin/control.h"
#include "platform/standin/failure.h"

namespace standin {
namespace {

constexpr int kLineHeight = 13;
// Closed, a drop-down list is one line high, whatever height it was made with: that is its list's.
constexpr int kClosedHeight = 21;

// A list box or a drop-down list: the same entries under two sets of message numbers.
class List : public Control {
 public:
  explicit List(Window& window)
      : Control(window), combo_(window.windowClass == FindClass("ComboBox")) {}
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  struct Entry {
    std::string text;
    LPARAM data;
  };

  void Create();
  LRESULT HandleEntry(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Add(const char* text);
  LRESULT Insert(LRESULT position, const char* text);
  LRESULT Select(LRESULT position);
  void Choose(LRESULT position);
  void Key(WPARAM key);
  void Release(LPARAM place);
  LRESULT Count() const { return static_cast<LRESULT>(entries_.size()); }

  const bool combo_;
  std::vector<Entry> entries_;
  LRESULT selected_ = LB_ERR;
};

void List::Create() {
  if (!combo_) return;
  if ((window_.style & 3) != CBS_DROPDOWNLIST) Unsupported("combo boxes are drop-down lists");
  window_.style &= ~static_cast<DWORD>(WS_VSCROLL);
  window_.frame.bottom = window_.frame.top + kClosedHeight;
}

// A sorting list puts a text into its place without regard to case.
LRESULT List::Add(const char* text) {
  if (!Has(combo_ ? CBS_SORT : LBS_SORT)) return Insert(Count(), text);
  const auto before = [](const Entry& entry, const char* added) {
    return strcasecmp(entry.text.c_str(), added) < 0;
  };
  return Insert(std::lower_bound(entries_.begin(), entries_.end(), text, before) - entries_.begin(),
                text);
}

LRESULT List::Insert(LRESULT position, const char* text) {
  if (position < 0 || position > Count()) return LB_ERR;
  entries_.insert(entries_.begin() + position, {text, 0});
  if (selected_ >= position) ++selected_;
  return position;
}

LRESULT List::Select(LRESULT position) {
  if (position < -1 || position >= Count()) return LB_ERR;
  return selected_ = position;
}

// The user chooses an entry: unlike a selection by message, this is told.
void List::Choose(LRESULT position) {
  if (Count() == 0) return;
  Select(std::clamp<LRESULT>(position, 0, Count() - 1));
  Repaint();
  static_assert(CBN_SELCHANGE == LBN_SELCHANGE);
  if (combo_ || Has(LBS_NOTIFY)) Tell(LBN_SELCHANGE);
}

void List::Key(WPARAM key) {
  if (key == VK_UP) Choose(selected_ - 1);
  if (key == VK_DOWN) Choose(selected_ + 1);
  if (key == VK_HOME) Choose(0);
}

void List::Release(LPARAM place) {
  if (GetCapture() != window_.handle) return;
  ReleaseCapture();
  const LRESULT position = static_cast<SHORT>(HIWORD(place)) / kLineHeight;
  if (position < Count()) Choose(position);
}

// The messages about one entry; LB_ERR, which is CB_ERR too, when there is none.
LRESULT List::HandleEntry(UINT message, WPARAM wParam, LPARAM lParam) {
  if (wParam >= entries_.size()) return LB_ERR;
  Entry& entry = entries_[wParam];
  switch (message) {
    case LB_GETTEXT:
    case CB_GETLBTEXT:
      std::strcpy(reinterpret_cast<char*>(lParam), entry.text.c_str());
      return static_cast<LRESULT>(entry.text.size());
    case LB_GETTEXTLEN:
    case CB_GETLBTEXTLEN:
      return static_cast<LRESULT>(entry.text.size());
    case LB_GETITEMDATA:
    case CB_GETITEMDATA:
      return entry.data;
    default:
      entry.data = lParam;
      return TRUE;
  }
}

LRESULT List::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool forCombo = message >= CB_ADDSTRING && message <= CB_SETITEMDATA;
  const bool forBox = message >= LB_ADDSTRING && message <= LB_SETITEMDATA;
  if (combo_ ? forBox : forCombo) Unsupported("a list message of the other kind of list");
  switch (message) {
    case WM_NCCREATE:
      Create();
      return TRUE;
    case LB_ADDSTRING:
    case CB_ADDSTRING:
      return Add(reinterpret_cast<const char*>(lParam));
    case LB_INSERTSTRING:
      return Insert(static_cast<int>(wParam), reinterpret_cast<const char*>(lParam));
    case LB_GETCOUNT:
    case CB_GETCOUNT:
      return Count();
    case LB_GETCURSEL:
    case CB_GETCURSEL:
      return selected_;
    case LB_SETCURSEL:
    case CB_SETCURSEL:
      return Select(static_cast<int>(wParam));
    case WM_KEYDOWN:
      Key(wParam);
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(window_.handle);
      if (!combo_) SetCapture(window_.handle);
      return 0;
    case WM_LBUTTONUP:
      Release(lParam);
      return 0;
    default:
      if (forCombo || forBox) return HandleEntry(message, wParam, lParam);
      return Control::Handle(message, wParam, lParam);
  }
}

}  // namespace

LRESULT ListProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<List>(handle, message, wParam, lParam);
}

}  // namespace standin
