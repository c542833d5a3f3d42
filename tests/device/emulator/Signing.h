// Signs and checks pointers as a phone's runtime does, for the slice that expects it; for the other
// slice pointers are plain. The schemas are those of the platform's arm64e ABI.
#pragma once

#include <cstdint>

class Signing {
 public:
  explicit Signing(bool on) : on_(on) {}

  // A C function pointer as the extension may call it.
  void* signFunction(void* plain) const;
  // These end the program, naming `what`, when the pointer is not signed as it must be.
  void* checkFunction(void* function, const char* what) const;
  // A code pointer that is signed over the address where it is stored.
  void* checkStoredFunction(void* const* slot, const char* what) const;
  void storeFunction(void** slot, void* plain) const;
  // The class pointer of a block.
  void* checkIsa(void* const* slot, const char* what) const;
  void storeIsa(void** slot, void* plain) const;

 private:
  bool on_;
};
