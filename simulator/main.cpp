#include "simulator/program/Program.h"

int main(int count, char** words) {
  return sim::runProgram({words + 1, words + count});
}
