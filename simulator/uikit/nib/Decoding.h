// Registration of the initialisers that classes are decoded with, by class.
#pragma once

#include "simulator/standin/StandIn.h"

namespace sim {

void addViewDecoding();
void addLabelDecoding();
void addControlDecoding();  // and buttons
void addImageViewDecoding();
void addStackViewDecoding();
void addConstraintDecoding();

// An initWithCoder: for a class that is there already. An empty difference grades it real.
template <auto function>
void addInitWithCoder(const char* cls, const char* difference) {
  const Grade grade = *difference == '\0' ? Grade::real : Grade::partial;
  if (FidelityPage("UIKit", cls).record('-', "initWithCoder:", {grade, difference}))
    objc::addMethod<"initWithCoder:", function>(objc_getClass(cls));
}

}  // namespace sim
