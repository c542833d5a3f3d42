#include "simulator/host/PhonePackage.h"

namespace sim {

void installPackage(const std::filesystem::path& package, const std::filesystem::path& root) {
  using std::filesystem::copy_options;
  std::filesystem::copy(package, root, copy_options::recursive | copy_options::overwrite_existing);
}

}  // namespace sim
