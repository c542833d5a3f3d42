// The size of a picture, from the beginning of its file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace sim {

struct PixelSize {
  std::uint32_t width;
  std::uint32_t height;
};

// Nothing when there is no such file or it is no PNG.
std::optional<PixelSize> pngSize(const std::filesystem::path& file);

}  // namespace sim
