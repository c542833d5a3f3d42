// BackBoardServices (private): ending applications.
#pragma once

#include "platform/Foundation.h"

namespace BackBoardServices {

inline void terminateApplication(NSString bundleIdentifier, int reason, bool report,
                                 NSString description) {
  if (auto* terminate =
          platform::hostFunction<"BKSTerminateApplicationForReasonAndReportWithDescription",
                                 void(id, int, bool, id)>())
    terminate(bundleIdentifier.get(), reason, report, description.get());
}

}  // namespace BackBoardServices
