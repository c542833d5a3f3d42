#include "simulator/runtime/Absences.h"

#include <atomic>

namespace simulator::runtime {
namespace {

std::atomic<AbsenceObserver> currentAbsenceObserver{nullptr};

}  // namespace

void observeAbsences(AbsenceObserver observer) {
  currentAbsenceObserver = observer;
}

void reportAbsence(const Absence& absence) {
  if (const AbsenceObserver observer = currentAbsenceObserver) observer(absence);
}

}  // namespace simulator::runtime
