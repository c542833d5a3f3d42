#include "simulator/runtime/Absences.h"

#include <atomic>

namespace sim::runtime {
namespace {

std::atomic<AbsenceObserver> currentAbsenceObserver{nullptr};

}  // namespace

void observeAbsences(AbsenceObserver observer) {
  currentAbsenceObserver = observer;
}

void reportAbsence(const Absence& absence) {
  if (const AbsenceObserver observer = currentAbsenceObserver) observer(absence);
}

}  // namespace sim::runtime
