#include "simulator/springboard/SBFWallpaperView.h"

#include <algorithm>

#include "simulator/quartzcore/CAGradientLayer.h"
#include "simulator/springboard/Shapes.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// In a screen of 390 x 844 points.
constexpr CGSize designed = {390, 844};
constexpr const char* starsText =
    "O 34 62 1.2 O 120 60 1 O 152 330 0.7 O 205 38 1.3 O 231 290 0.9 "
    "O 333 72 0.9 O 352 402 1.1 O 24 300 0.9 "
    "O 60 418 1.2 O 108 482 0.7 O 196 436 0.9 O 250 380 0.7 O 318 498 0.8 O 370 560 0.9 "
    "O 20 534 0.8 O 140 560 1 O 226 540 0.7 O 78 606 0.7 O 176 622 0.8";
constexpr const char* moonText =
    "M 300 566 C 286 570 277 582 277 597 C 277 615 292 630 310 630 C 325 630 337 621 341 607 "
    "C 336 610 331 611 325 611 C 308 611 295 598 295 581 C 295 575 297 570 300 566 Z";
constexpr CGPoint moonCentre = {309, 598};
constexpr const char* farHillsText =
    "M 0 700 C 50 668 96 662 148 690 C 190 712 220 716 262 690 C 300 666 342 664 390 692 "
    "L 390 844 L 0 844 Z";
constexpr const char* nearHillsText =
    "M 0 762 C 46 742 92 736 150 752 C 214 770 262 776 320 750 C 348 738 370 734 390 734 "
    "L 390 844 L 0 844 Z";

Class layerClass() {
  return CAGradientLayer::cls() != nullptr ? CAGradientLayer::cls() : objc_getClass("CALayer");
}

void paintSky(Object layer) {
  setGradient(layer, {{5, 8, 26}, {15, 24, 66}, {38, 52, 112}, {86, 88, 150}},
              {0, 0.45, 0.75, 0.9});
}

}  // namespace

Object SBFWallpaperView::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  objc::send<void, "setUserInteractionEnabled:">(made, false);
  const Object layer = objc::send<Object, "layer">(made);
  paintSky(layer);
  stars = addShapeLayer(layer, starsText, {coreColor({201, 210, 240}), nullptr});
  moon = addShapeLayer(layer, moonText, {coreColor({240, 232, 208}), nullptr});
  farHills = addShapeLayer(layer, farHillsText, {coreColor({24, 32, 78}), nullptr});
  nearHills = addShapeLayer(layer, nearHillsText, {coreColor({10, 15, 42}), nullptr});
  return made;
}

// The hills are stretched; stars and moon stay round.
void SBFWallpaperView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  const double wide = size.width / designed.width, high = size.height / designed.height;
  const double filling = std::max(wide, high);
  const auto transform = [](const Object& shape, const CGAffineTransform& to) {
    objc::send<void, "setAffineTransform:">(shape, to);
  };
  transform(stars, {filling, 0, 0, filling, 0, 0});
  transform(moon, {1, 0, 0, 1, moonCentre.x * (wide - 1), moonCentre.y * (high - 1)});
  for (const auto* hills : {&farHills, &nearHills}) transform(*hills, {wide, 0, 0, high, 0, 0});
}

void SBFWallpaperView::registerClass() {
  StandIn<SBFWallpaperView>("SpringBoardFoundation", "SBFWallpaperView", "UIView")
      .classMethod<"layerClass", &layerClass>()
      .method<"initWithFrame:", &SBFWallpaperView::initWithFrame>()
      .partial<"layoutSubviews", &SBFWallpaperView::layoutSubviews>("there is one picture")
      .finish();
}

}  // namespace sim
