// What the tests of the tool change: small enough to know every mutant.
#pragma once

inline int doubled(int value) {
  return value * 2;
}
