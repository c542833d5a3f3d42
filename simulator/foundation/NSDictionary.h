// NSDictionary and, on top of its state, NSMutableDictionary.
#pragma once

#include "objc/Class.h"
#include "simulator/foundation/KeyTable.h"

namespace sim {

struct NSDictionary : objc::Implementation<NSDictionary> {
  KeyTable table;

  objc::Object value(objc::Object key) const {
    const KeyEntry* entry = table.find(key);
    return entry == nullptr ? objc::Object() : entry->value.get();
  }
  // Copies the key, as dictionaries do.
  void put(objc::Object key, objc::Object value);

  static void registerClass();
};

}  // namespace sim
