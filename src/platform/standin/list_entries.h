// The entries of a list box or combo box, with the selection.
#pragma once

#include <string>
#include <vector>

#include "platform/standin/window.h"

namespace standin {

// The results are those of the LB_ and CB_ messages: LB_ERR, which is CB_ERR too, for what cannot
// be.
class ListEntries : public ControlState {
 public:
  // Adds at the end or, when sorted, in the order of the texts without regard to case.
  LRESULT Add(const char* text, bool sorted);
  // Inserts at a position (-1: at the end), whatever the sorting.
  LRESULT Insert(LRESULT position, const char* text);

  LRESULT Count() const { return static_cast<LRESULT>(entries_.size()); }
  LRESULT Selected() const { return selected_; }
  LRESULT Select(LRESULT position);
  // Where a key of the keyboard takes the selection, or -1 for a key that means nothing.
  LRESULT TargetOf(WPARAM key) const;

  LRESULT Text(size_t position, LPARAM buffer) const;
  LRESULT TextLength(size_t position) const;
  LRESULT Data(size_t position) const;
  LRESULT SetData(size_t position, LPARAM data);

 private:
  struct Entry {
    std::string text;
    LPARAM data;
  };
  std::vector<Entry> entries_;
  LRESULT selected_ = LB_ERR;
};

}  // namespace standin
