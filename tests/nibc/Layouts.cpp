// The extension's own layouts have everything that its classes look for by name.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

#include "tools/nibc/Compiler.h"

namespace xib {
namespace {

using Names = std::map<std::string, std::string>;

class Compiled {
 public:
  explicit Compiled(const char* name) {
    std::ifstream file(std::string(LAYOUTS "/") + name + ".xib", std::ios::binary);
    archive_ = compile({std::istreambuf_iterator<char>(file), {}});
  }

  // nullptr when the object has no such value.
  const nib::Value* value(std::uint32_t object, const std::string& key) const {
    const nib::Object& found = archive_.objects[object];
    for (std::uint32_t i = 0; i < found.valueCount; ++i) {
      const nib::Value& each = archive_.values[found.firstValue + i];
      if (archive_.keys[each.key] == key) return &each;
    }
    return nullptr;
  }
  std::uint32_t object(std::uint32_t of, const std::string& key) const {
    return std::get<nib::Reference>(value(of, key)->content).object;
  }
  std::string text(std::uint32_t of, const std::string& key) const {
    return std::get<nib::Data>(value(object(of, key), "NS.bytes")->content);
  }
  // The name of a class of one's own, of the platform's class, or which proxy it is.
  std::string kind(std::uint32_t object) const {
    const std::string cls = archive_.classes[archive_.objects[object].cls].name;
    if (cls == "UIClassSwapper") return text(object, "UIClassName");
    return cls == "UIProxyObject" ? text(object, "UIProxiedObjectIdentifier") : cls;
  }

  std::vector<std::uint32_t> all(const std::string& cls) const {
    std::vector<std::uint32_t> found;
    for (std::uint32_t i = 0; i < archive_.objects.size(); ++i)
      if (archive_.classes[archive_.objects[i].cls].name == cls) found.push_back(i);
    return found;
  }

  std::uint32_t destination(const std::string& outlet) const {
    for (const std::uint32_t each : all("UIRuntimeOutletConnection"))
      if (text(each, "UILabel") == outlet) return object(each, "UIDestination");
    ADD_FAILURE() << "no outlet " << outlet;
    return 0;
  }

  // By property; "Class Class" of source and destination.
  Names outlets() const {
    Names found;
    for (const std::uint32_t each : all("UIRuntimeOutletConnection"))
      found[text(each, "UILabel")] =
          kind(object(each, "UISource")) + " " + kind(object(each, "UIDestination"));
    return found;
  }

  std::int64_t integer(std::uint32_t object, const std::string& key) const {
    const nib::Value* found = value(object, key);
    return found == nullptr ? -1 : std::get<nib::Integer>(found->content).value;
  }
  double number(std::uint32_t object, const std::string& key) const {
    const nib::Value* found = value(object, key);
    return found == nullptr ? 0 : std::get<double>(found->content);
  }

 private:
  nib::Archive archive_;
};

TEST(Layouts, CurrentTimerView) {
  const Compiled layout("CurrentTimerView");
  EXPECT_EQ(layout.outlets(),
            (Names{{"titleLabel", "CurrentTimerView UILabel"},
                   {"timerLabel", "CurrentTimerView UILabel"},
                   {"subtitleLabel", "CurrentTimerView UILabel"},
                   {"backButton", "CurrentTimerView UIButton"},
                   {"cancelTimerButton", "CurrentTimerView UIButton"},
                   {"bottomButtonHeightConstraint", "CurrentTimerView NSLayoutConstraint"}}));
  EXPECT_TRUE(layout.all("UIRuntimeEventConnection").empty());  // the controller's business
  const std::uint32_t height = layout.destination("bottomButtonHeightConstraint");
  EXPECT_EQ(layout.integer(height, "NSFirstAttribute"), 8);
  EXPECT_EQ(layout.number(height, "NSConstant"), 50);
  EXPECT_EQ(layout.number(height, "NSConstantV2"), 50);
}

TEST(Layouts, OnTimerEndsSettingsView) {
  const Compiled layout("OnTimerEndsSettingsView");
  const std::string box = "OnTimerEndsSettingsView CheckboxButton";
  EXPECT_EQ(layout.outlets(), (Names{{"titleLabel", "OnTimerEndsSettingsView UILabel"},
                                     {"backButton", "OnTimerEndsSettingsView UIButton"},
                                     {"toggleStartEndButton", "OnTimerEndsSettingsView UIButton"},
                                     {"planeModeButton", box},
                                     {"dndButton", box},
                                     {"runShortcutButton", box},
                                     {"bluetoothButton", box},
                                     {"customVolumeButton", box}}));
  std::map<std::uint32_t, std::string> actions;
  for (const std::uint32_t each : layout.all("UIRuntimeEventConnection")) {
    actions[layout.object(each, "UISource")] = layout.text(each, "UILabel");
    EXPECT_EQ(layout.kind(layout.object(each, "UIDestination")), "OnTimerEndsSettingsView");
    EXPECT_EQ(layout.integer(each, "UIEventMask"), 64);
  }
  EXPECT_EQ(actions, (std::map<std::uint32_t, std::string>{
                         {layout.destination("toggleStartEndButton"), "toggleStateButtonClicked:"},
                         {layout.destination("runShortcutButton"), "runShortcutButtonClicked:"}}));
}

TEST(Layouts, ImageButton) {
  const Compiled layout("ImageButton");
  EXPECT_EQ(layout.outlets(),
            (Names{{"contentView", "IBFilesOwner UIView"},
                   {"iconImage", "IBFilesOwner UIImageView"},
                   {"textLabel", "IBFilesOwner UILabel"},
                   {"iconAspectRatioConstraint", "IBFilesOwner NSLayoutConstraint"},
                   {"iconWidthConstraint", "IBFilesOwner NSLayoutConstraint"},
                   {"labelLeadingConstraint", "IBFilesOwner NSLayoutConstraint"}}));
  const std::uint32_t ratio = layout.destination("iconAspectRatioConstraint");
  EXPECT_EQ(layout.integer(ratio, "NSPriority"), 999);
  EXPECT_EQ(layout.integer(ratio, "NSSecondAttribute"), 8);
  const std::uint32_t width = layout.destination("iconWidthConstraint");
  EXPECT_EQ(layout.integer(width, "NSPriority"), 250);
  EXPECT_EQ(layout.number(width, "NSConstant"), 0);
  EXPECT_EQ(layout.object(width, "NSFirstItem"), layout.destination("iconImage"));
  EXPECT_EQ(layout.number(layout.destination("labelLeadingConstraint"), "NSConstant"), 6);
}

// Else the button would never be touched.
TEST(Layouts, ImageButtonLeavesTouchesToItsOwner) {
  const Compiled layout("ImageButton");
  const std::uint32_t content = layout.destination("contentView");
  EXPECT_NE(layout.value(content, "UIUserInteractionDisabled"), nullptr);
}

TEST(Layouts, EveryLabelShrinksRatherThanLosesItsEnd) {
  for (const char* name : {"CurrentTimerView", "OnTimerEndsSettingsView", "ImageButton"}) {
    const Compiled layout(name);
    EXPECT_FALSE(layout.all("UILabel").empty()) << name;
    for (const std::uint32_t label : layout.all("UILabel"))
      for (const char* key : {"UIAdjustsFontSizeToFit", "UIMinimumScaleFactor"})
        EXPECT_NE(layout.value(label, key), nullptr) << name << " " << key;
  }
}

}  // namespace
}  // namespace xib
