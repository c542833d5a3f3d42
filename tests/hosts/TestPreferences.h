// A phone with a preferences domain.
#pragma once

#include "objc/Block.h"
#include "simulator/cephei/HBPreferences.h"
#include "simulator/cephei/PreferencesFile.h"
#include "simulator/cephei/SettingsApp.h"
#include "simulator/foundation/PropertyList.h"
#include "tests/hosts/TestHost.h"

namespace sim {

class TestPreferences : public TestHost {
 protected:
  static constexpr const char* domain = "com.example.test";

  static objc::Strong<objc::Object> open(const char* identifier = domain) {
    return objc::adopt(objc::send<objc::Object, "initWithIdentifier:">(
        objc_alloc(objc_getClass("HBPreferences")), string(identifier)));
  }

  static std::filesystem::path file() { return preferencesFile(domain); }

  static objc::Object contentOfFile() {
    std::string error;
    const objc::Object content = readPropertyList(file(), &error);
    EXPECT_TRUE(content) << error;
    return content;
  }

  static objc::Object storedValue(const char* key) {
    return objc::send<objc::Object, "objectForKey:">(contentOfFile(), string(key));
  }

  // A change by the settings application, and its arrival.
  void changeElsewhere(const char* key, const SettingsValue& value) {
    writeSetting(file(), key, value);
    HBPreferences::domainDidChangeElsewhere(domain);
    advance(0);
  }
};

}  // namespace sim
