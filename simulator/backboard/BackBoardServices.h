// BackBoardServices: ending applications.
#pragma once

#include "objc/runtime.h"

extern "C" {

// Ends the application, an NSString naming its bundle, at once. Of the phone's applications only
// the one that has the music lives here; for others nothing happens.
void BKSTerminateApplicationForReasonAndReportWithDescription(id bundleIdentifier, int reason,
                                                              bool report, id description);

}  // extern "C"
