#pragma once

#include <map>
#include <optional>
#include <string>

#include "objc/Class.h"
#include "simulator/foundation/BundleFiles.h"
#include "simulator/foundation/StringsTable.h"

namespace sim {

struct NSBundle : objc::Implementation<NSBundle> {
  std::string path;                            // on the phone, without a slash at the end
  objc::Strong<objc::Object> info;             // of Info.plist; empty until it is asked for
  std::map<std::string, StringsTable> tables;  // that were read
  std::optional<BundleFiles> content;          // empty until a file is asked for

  const BundleFiles& files();
  objc::Object infoDictionary();
  objc::Object pathForResource(objc::Object name, objc::Object type);
  objc::Object URLForResource(objc::Object name, objc::Object extension);
  objc::Object localizedString(objc::Object key, objc::Object otherwise, objc::Object table);

  static void registerClass();

 private:
  const StringsTable& table(const std::string& name);
};

}  // namespace sim
