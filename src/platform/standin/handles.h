// Tables from handles to objects. A handle is a number that is never used twice, so that a stale
// one is recognised for the life of the process.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

namespace standin {

// The next free handle number.
inline uintptr_t NextHandle() {
  static uintptr_t next = 0x10000;
  return next += 4;
}

// Owns the objects behind handles of one kind. Tables are made with new and stay until the process
// has gone, since the editor's global objects give their handles back after main has returned.
template <class Object>
class HandleTable {
 public:
  template <class Handle>
  Handle Add(std::shared_ptr<Object> object) {
    const auto handle = reinterpret_cast<Handle>(NextHandle());
    objects_[handle] = std::move(object);
    return handle;
  }

  // The object, or null for a handle that is stale or was never given out.
  std::shared_ptr<Object> Find(const void* handle) const {
    const auto found = objects_.find(handle);
    return found == objects_.end() ? nullptr : found->second;
  }

  bool Remove(const void* handle) { return objects_.erase(handle) != 0; }

  const std::unordered_map<const void*, std::shared_ptr<Object>>& All() const { return objects_; }

 private:
  std::unordered_map<const void*, std::shared_ptr<Object>> objects_;
};

}  // namespace standin
