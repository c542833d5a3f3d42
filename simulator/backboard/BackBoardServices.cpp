#include "simulator/backboard/BackBoardServices.h"

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerBackBoard() {
  recordFunction("BackBoardServices", "BKSTerminateApplicationForReasonAndReportWithDescription",
                 {Grade::partial, "only the application that has the music runs, and can end"});
}

}  // namespace sim

void BKSTerminateApplicationForReasonAndReportWithDescription(id bundleIdentifier, int reason,
                                                              bool report, id description) {
  using namespace sim;
  const objc::Object application(bundleIdentifier);
  Phone::current().journal.record("BKSTerminateApplicationForReasonAndReportWithDescription(" +
                                  notation(application) + ", " + notation(long(reason)) + ", " +
                                  notation(report) + ", " + notation(objc::Object(description)) +
                                  ')');
  Player& player = Player::current();
  if (application && text(application) == player.application()) player.stop();
}
