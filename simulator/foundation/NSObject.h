// What Foundation adds to the root class.
#pragma once

#include "objc/Method.h"
#include "simulator/standin/Fidelity.h"

namespace sim {

// description, delayed performs, key-value coding.
void addObjectMethods();

// One method of the root class. An empty difference grades it real.
template <objc::FixedString Name, auto function>
void addToRootClass(const char* difference = "") {
  const Grade grade = *difference == '\0' ? Grade::real : Grade::partial;
  if (FidelityPage("Foundation", "NSObject").record('-', Name.c_str(), {grade, difference}))
    objc::addMethod<Name, function>(objc_getClass("NSObject"));
}

}  // namespace sim
