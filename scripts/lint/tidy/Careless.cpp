#include "Careless.h"

#include <utility>

using std::pair;

std::size_t movedAway(std::string text) {
  const std::string taken = std::move(text);
  return taken.size() + text.size();
}

double half(int number) {
  return number / 2;
}

int nowhere(bool really) {
  int number = 1;
  int* place = really ? nullptr : &number;
  if (really) return *place;
  return number;
}
