// Tables of handles.
//
// A handle of the headless backend is a number dressed as a pointer and never
// given out twice, not even after HeadlessReset: whoever uses one after its end
// is told so instead of touching freed memory or a stranger's object.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

// The next number that no handle has had yet.
std::uintptr_t HandleNext();

template <typename Tag, typename Object>
class HandleTable {
 public:
  Tag* Add(std::shared_ptr<Object> object) {
    const std::uintptr_t number = HandleNext();
    objects_[number] = std::move(object);
    return reinterpret_cast<Tag*>(number);
  }

  // The object; null if the handle has none.
  std::shared_ptr<Object> Find(const Tag* handle) const {
    const auto at = objects_.find(reinterpret_cast<std::uintptr_t>(handle));
    return at == objects_.end() ? nullptr : at->second;
  }

  // False if there was none.
  bool Remove(const Tag* handle) { return objects_.erase(reinterpret_cast<std::uintptr_t>(handle)) > 0; }

  void Clear() { objects_.clear(); }

  // In the order they were made.
  const std::map<std::uintptr_t, std::shared_ptr<Object>>& All() const { return objects_; }

 private:
  std::map<std::uintptr_t, std::shared_ptr<Object>> objects_;
};
