#include "simulator/controlcenter/ModuleGrid.h"

#include <cmath>

namespace sim {
namespace {

// Points.
constexpr double cell = 69, gap = 15, uprightTop = 120, expandedHeight = 360;

double extent(int cells) {
  return cells * cell + (cells - 1) * gap;
}

constexpr std::array<ModulePlace, 11> places = {{
    {ModuleKind::connectivity, {0, 0, 2, 2}, {0, 0, 2, 2}},
    {ModuleKind::media, {2, 0, 2, 2}, {0, 2, 2, 2}},
    {ModuleKind::button, {0, 2, 1, 1}, {2, 0, 1, 1}},  // the lock of the orientation
    {ModuleKind::button, {1, 2, 1, 1}, {3, 0, 1, 1}},  // another screen
    {ModuleKind::slider, {2, 2, 1, 2}, {2, 1, 1, 2}},  // brightness
    {ModuleKind::slider, {3, 2, 1, 2}, {3, 1, 1, 2}},  // volume
    {ModuleKind::wide, {0, 3, 2, 1}, {2, 3, 2, 1}},    // focus
    {ModuleKind::button, {0, 4, 1, 1}, {4, 0, 1, 1}},  // torch
    {ModuleKind::button, {1, 4, 1, 1}, {4, 1, 1, 1}},  // alarm
    {ModuleKind::button, {2, 4, 1, 1}, {4, 2, 1, 1}},  // calculator
    {ModuleKind::button, {3, 4, 1, 1}, {4, 3, 1, 1}},  // camera
}};

}  // namespace

const std::array<ModulePlace, 11>& modulePlaces() {
  return places;
}
const ModulePlace& mediaPlace() {
  return places[1];
}

ModuleGrid::ModuleGrid(CGSize screen, bool isRightToLeft)
    : screen_(screen), isTurned_(screen.width > screen.height), isRightToLeft_(isRightToLeft) {}

CGRect ModuleGrid::frame(const ModulePlace& place) const {
  const Cells& cells = isTurned_ ? place.turned : place.upright;
  const int columns = isTurned_ ? 5 : 4;
  const int column =
      isRightToLeft_ ? columns - cells.column - cells.columns : cells.column;  // from the left
  const double left = std::floor((screen_.width - extent(columns)) / 2);
  const double top = isTurned_ ? std::floor((screen_.height - extent(4)) / 2) : uprightTop;
  return {{left + column * (cell + gap), top + cells.row * (cell + gap)},
          {extent(cells.columns), extent(cells.rows)}};
}

CGRect ModuleGrid::expandedFrame() const {
  const CGSize size = {extent(4), expandedHeight};
  return {{std::floor((screen_.width - size.width) / 2),
           std::floor((screen_.height - size.height) / 2)},
          size};
}

}  // namespace sim
