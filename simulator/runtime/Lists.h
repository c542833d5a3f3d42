// What class_copyMethodList, class_copyIvarList and class_copyPropertyList share.
#pragma once

#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

namespace simulator::runtime {

// A malloc'ed array with a terminating null, for the caller to free(); nullptr when there is
// nothing. `count` may be null.
template <typename T>
T** copyList(const std::vector<std::unique_ptr<T>>* list, unsigned int* count) {
  const std::size_t size = list != nullptr ? list->size() : 0;
  if (count != nullptr) {
    *count = static_cast<unsigned int>(size);
  }
  if (size == 0) {
    return nullptr;
  }
  auto** copy = static_cast<T**>(std::malloc((size + 1) * sizeof(T*)));
  if (copy == nullptr) {
    throw std::bad_alloc();
  }
  for (std::size_t i = 0; i < size; ++i) {
    copy[i] = (*list)[i].get();
  }
  copy[size] = nullptr;
  return copy;
}

}  // namespace simulator::runtime
