// Registration of the initialisers that classes are decoded with, by class.
#pragma once

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/nib/NibCoder.h"

namespace sim {

void addViewDecoding();
void addControlDecoding();    // and buttons
void addPlainViewDecoding();  // labels, images and stacks
void addConstraintDecoding();

// An initWithCoder: for a class that is there already. An empty difference grades it real.
template <auto function>
void addInitWithCoder(const char* cls, const char* difference) {
  const Grade grade = *difference == '\0' ? Grade::real : Grade::partial;
  if (FidelityPage("UIKit", cls).record('-', "initWithCoder:", {grade, difference}))
    objc::addMethod<"initWithCoder:", function>(objc_getClass(cls));
}

template <class View, void (*decode)(objc::Object view, const NibCoder& coder)>
objc::Object initDecoded(objc::Object self, objc::Object source) {
  const objc::Object made =
      objc::sendSuper<objc::Object, "initWithCoder:">(self.get(), View::cls(), source);
  if (made) decode(made, NibCoder(source));
  return made;
}

// The same, of a function that decodes what the superclass has left.
template <class View, void (*decode)(objc::Object view, const NibCoder& coder)>
void addDecoding(const char* cls, const char* difference) {
  addInitWithCoder<&initDecoded<View, decode>>(cls, difference);
}

}  // namespace sim
