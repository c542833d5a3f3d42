// Packages and documents that a test writes to the phone.
#pragma once

#include <fstream>
#include <stdexcept>

#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/CAShapeLayer.h"
#include "simulator/quartzcore/caml/Reader.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {

inline constexpr const char* packageFolder = "/var/Test.ca";

class PackageTest : public UIKitTest {
 protected:
  void TearDown() override {
    std::filesystem::remove_all(phone.file(packageFolder));
    UIKitTest::TearDown();
  }

  void write(const std::string& name, const std::string& content) const {
    const auto path = phone.file(std::string(packageFolder) + '/' + name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
  }

  // With what the index is to hold besides the document's name.
  void writePackage(const std::string& index, const std::string& document) const {
    write("index.xml",
          "<plist version=\"1.0\"><dict><key>rootDocument</key>"
          "<string>main.caml</string>" +
              index + "</dict></plist>");
    write("main.caml", document);
  }

  // nil, and the problem under `error`, for what cannot be read.
  Object load(const char* type = "com.apple.coreanimation-bundle",
              const char* path = packageFolder) {
    id problem = nullptr;
    const Object url = send<Object, "fileURLWithPath:">(cls("NSURL"), string(path));
    const Object package = send<Object, "packageWithContentsOfURL:type:options:error:">(
        cls("CAPackage"), url, string(type), Object(), &problem);
    error = text(send<Object, "localizedDescription">(problem));
    code = send<long, "code">(problem);
    domain = text(send<Object, "domain">(problem));
    return package;
  }

  std::string error, domain;
  long code = 0;
};

// A document around these elements.
inline std::string document(const std::string& inner) {
  return "<caml xmlns=\"http://www.apple.com/CoreAnimation/1.0\">" + inner + "</caml>";
}

// The object of a document that can be read.
inline Strong<Object> read(const std::string& inner) {
  return caml::read(document(inner), packageFolder);
}

}  // namespace sim
