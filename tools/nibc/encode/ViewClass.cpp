#include "tools/nibc/encode/ViewClass.h"

namespace xib {
namespace {

constexpr ViewClass classes[] = {
    {"view", "UIView", Item::view, nullptr},
    {"label", "UILabel", Item::view, &encodeLabel},
    {"button", "UIButton", Item::control, &encodeButton},
    {"imageView", "UIImageView", Item::view, &encodeImageView},
    {"stackView", "UIStackView", Item::view, &encodeStackView},
};

}  // namespace

const ViewClass* viewClassOf(std::string_view element) {
  for (const ViewClass& each : classes)
    if (element == each.element) return &each;
  return nullptr;
}

}  // namespace xib
