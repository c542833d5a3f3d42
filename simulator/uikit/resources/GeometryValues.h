// What UIKit adds to NSValue: points, sizes and rectangles as objects.
#pragma once

namespace sim {

void addGeometryValues();

}  // namespace sim
