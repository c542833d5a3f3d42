// A phone with the frameworks' classes and files of the test's choice.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/Registration.h"
#include "tests/hosts/TestPhone.h"

namespace sim {

class PhoneWithFiles : public TestPhone {
 protected:
  PhoneWithFiles() {
    // Classes are the process's; only the first phone of several tests in one registers them.
    static const bool registered =
        (registerFoundation(), registerQuartzCore(), registerUIKit(), true);
    (void)registered;
  }

  void write(std::string_view phonePath, std::string_view content) {
    const auto file = phone.file(phonePath);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
  }

  static objc::Object bundleAt(std::string_view phonePath) {
    return objc::send<objc::Object, "bundleWithPath:">(objc_getClass("NSBundle"),
                                                       string(phonePath));
  }

  // What the bundle says for the key, "?" when it says nothing.
  static std::string localized(std::string_view bundle, std::string_view key) {
    const objc::AutoreleasePool pool;  // a bundle that lives on would know the tables of before
    return text(objc::send<objc::Object, "localizedStringForKey:value:table:">(
        bundleAt(bundle), string(key), string("?"), objc::Object()));
  }

 private:
  objc::AutoreleasePool pool_;
};

}  // namespace sim
