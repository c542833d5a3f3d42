// What class_copyMethodList, class_copyIvarList and their kin share.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

namespace sim::runtime {

// A malloc'ed array with a terminating null, for the caller to free(); nullptr when there is
// nothing. `count` may be null.
template <class T>
T** copyList(const std::vector<T*>& list, unsigned int* count) {
  if (count != nullptr) *count = static_cast<unsigned int>(list.size());
  if (list.empty()) return nullptr;
  auto** copy = static_cast<T**>(std::malloc((list.size() + 1) * sizeof(T*)));
  if (copy == nullptr) throw std::bad_alloc();
  *std::copy(list.begin(), list.end(), copy) = nullptr;
  return copy;
}

// `owners` may be null: nothing.
template <class T>
T** copyOldestFirst(const std::vector<std::unique_ptr<T>>* owners, unsigned int* count) {
  std::vector<T*> list;
  if (owners != nullptr)
    for (const auto& one : *owners) list.push_back(one.get());
  return copyList(list, count);
}

// Every addition to a class is put in front of what is there.
template <class T>
T** copyNewestFirst(const std::vector<std::unique_ptr<T>>* owners, unsigned int* count) {
  std::vector<T*> list;
  if (owners != nullptr)
    for (auto one = owners->rbegin(); one != owners->rend(); ++one) list.push_back(one->get());
  return copyList(list, count);
}

}  // namespace sim::runtime
