#include "simulator/uikit/application/UIPasteboard.h"

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object UIPasteboard::generalPasteboard() {
  return objc::Object(shared().self());
}

void UIPasteboard::setString(objc::Object text) {
  string = objc::adopt(objc::send<objc::Object, "copy">(text));
  Phone::current().journal.record("-[UIPasteboard setString:" + notation(text) + ']');
}

void UIPasteboard::registerClass() {
  StandIn<UIPasteboard>("UIKit", "UIPasteboard", "NSObject")
      .partialClassMethod<"generalPasteboard", &UIPasteboard::generalPasteboard>(
          "text only; empty again after a restart of the host")
      .readonlyProperty<"string", &UIPasteboard::string>()
      .method<"setString:", &UIPasteboard::setString>()
      .finish();
}

}  // namespace sim
