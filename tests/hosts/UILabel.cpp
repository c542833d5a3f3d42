#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class UILabelTest : public TestHost {
 protected:
  UILabelTest() { boot(); }
};

TEST_F(UILabelTest, ShowsACopyOfItsText) {
  const auto label = objc::adopt(objc::send<objc::Object, "new">(objc_getClass("UILabel")));
  const auto shown = [&label] { return objc::send<objc::Object, "text">(label.get()); };
  EXPECT_FALSE(shown());
  const auto words = objc::adopt(objc::send<objc::Object, "mutableCopy">(string("3 songs")));
  objc::send<void, "setText:">(label.get(), words.get());
  objc::send<void, "appendString:">(words.get(), string(" left"));
  EXPECT_EQ(text(shown()), "3 songs");
  objc::send<void, "setText:">(label.get(), nullptr);
  EXPECT_FALSE(shown());
}

}  // namespace
}  // namespace sim
