#include "simulator/cephei/Bindings.h"

#include <utility>

#include "simulator/cephei/Conversion.h"

namespace sim {
namespace {

template <class T>
void store(T* address, objc::Object value) {
  *address = converted<T>(value);
}

// As a compiler stores into a strong variable: the old object goes last.
void store(id* address, objc::Object value) {
  objc_release(std::exchange(*address, objc_retain(value.get())));
}

}  // namespace

void Bindings::update(const PreferencesDomain& domain) const {
  for (const auto& [key, address] : addresses_) {
    const objc::Object value = domain.value(key);
    std::visit([value](auto* each) { store(each, value); }, address);
  }
}

}  // namespace sim
