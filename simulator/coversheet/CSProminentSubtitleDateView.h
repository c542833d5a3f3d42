// CoverSheet, from iOS 16 on: the date line of the lock screen, in place of the older view, which
// still exists and is made by nobody.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct CSProminentTextElementView : objc::Implementation<CSProminentTextElementView> {
  objc::Strong<objc::Object> textLabel;       // UILabel
  objc::Strong<objc::Object> text;            // NSString: what the element has to say
  objc::Strong<objc::Object> overrideString;  // NSString; nil: that text

  objc::Object initWithFrame(CGRect frame);
  void setOverrideString(objc::Object shown);
  void setElementText(objc::Object shown);

  static void registerClass();

 private:
  void show();
};

struct CSProminentSubtitleDateView : objc::Implementation<CSProminentSubtitleDateView> {
  // Seconds since the reference date. Who draws it on a phone, and by which message, is not known.
  static void showDate(objc::Object view, double moment);
  static objc::Object shownText(objc::Object view);  // NSString; nil before there is one

  static void registerClass();
};

}  // namespace sim
