#include "platform/standin/list_entries.h"

#include <strings.h>

#include <algorithm>
#include <cstring>

namespace standin {

LRESULT ListEntries::Add(const char* text, bool sorted) {
  if (!sorted) return Insert(-1, text);
  const auto place = std::lower_bound(entries_.begin(), entries_.end(), text,
                                      [](const Entry& entry, const char* added) {
                                        return strcasecmp(entry.text.c_str(), added) < 0;
                                      });
  return Insert(place - entries_.begin(), text);
}

LRESULT ListEntries::Insert(LRESULT position, const char* text) {
  if (position == -1) position = Count();
  if (position < 0 || position > Count()) return LB_ERR;
  entries_.insert(entries_.begin() + position, {text, 0});
  if (selected_ >= position) ++selected_;
  return position;
}

LRESULT ListEntries::Select(LRESULT position) {
  if (position < -1 || position >= Count()) return LB_ERR;
  return selected_ = position;
}

LRESULT ListEntries::TargetOf(WPARAM key) const {
  LRESULT target = selected_;
  switch (key) {
    case VK_UP:
      --target;
      break;
    case VK_DOWN:
      ++target;
      break;
    case VK_HOME:
      target = 0;
      break;
    case VK_END:
      target = Count();
      break;
    default:
      return -1;
  }
  return entries_.empty() ? -1 : std::clamp<LRESULT>(target, 0, Count() - 1);
}

LRESULT ListEntries::Text(size_t position, LPARAM buffer) const {
  if (position >= entries_.size()) return LB_ERR;
  std::strcpy(reinterpret_cast<char*>(buffer), entries_[position].text.c_str());
  return TextLength(position);
}

LRESULT ListEntries::TextLength(size_t position) const {
  return position < entries_.size() ? static_cast<LRESULT>(entries_[position].text.size()) : LB_ERR;
}

LRESULT ListEntries::Data(size_t position) const {
  return position < entries_.size() ? entries_[position].data : LB_ERR;
}

LRESULT ListEntries::SetData(size_t position, LPARAM data) {
  if (position >= entries_.size()) return LB_ERR;
  entries_[position].data = data;
  return TRUE;
}

}  // namespace standin
