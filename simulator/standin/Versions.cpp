#include "simulator/standin/Versions.h"

#include "simulator/machine/NumberReader.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

struct Row {
  std::string_view cls;
  std::string_view member;  // empty for the class itself
  Versions versions;
};

constexpr int earliest = Versions::earliest, latest = Versions::latest;

constexpr Row table[] = {
    {"BBSettingsGateway", "setBehaviorOverrideStatus:", {earliest, 14}},
    {"CSProminentSubtitleDateView", "", {16, latest}},
    {"CSProminentTextElementView", "", {16, latest}},
    {"RadiosPreferences", "synchronize", {earliest, 17}},
    {"SBMediaController", "pause", {earliest, 14}},
    {"SBMediaController", "setVolume:", {earliest, 12}},
    {"SBMediaController", "volume", {earliest, 12}},
    {"SBVolumeControl", "sharedInstance", {earliest, 15}},
    // The media module was built anew in 16.0.
    {"MRUControlCenterView", "routingButton", {16, latest}},
    {"MRUControlCenterView", "setShowRoutingButton:", {16, latest}},
    {"MRUControlCenterView", "showRoutingButton", {16, latest}},
    {"MRUControlCenterViewController", "didSelectRoutingButton:", {16, latest}},
    {"MRUControlCenterViewController", "viewControllers", {earliest, 15}},
    {"MRUEmbeddingView", "", {earliest, 15}},
    {"MRUNowPlayingHeaderView", "context", {earliest, 15}},
    {"MRUNowPlayingRoutingButton", "", {earliest, 15}},
    {"MRUNowPlayingTransportControlsView", "routingButton", {16, latest}},
    {"MRUNowPlayingView", "collapsedEmbeddingView", {earliest, 15}},
    {"MRUNowPlayingView", "contentView", {16, latest}},
    {"MRUNowPlayingView", "setContentView:", {16, latest}},
    {"MRUNowPlayingViewController",
     "presentExternalRoutingControlsFromSourceView:",
     {earliest, 15}},
    {"MRUNowPlayingViewController", "presentRoutingControlsFromSourceView:", {16, latest}},
    {"MRUNowPlayingViewController", "setRoutingViewController:", {16, latest}},
    {"MRUNowPlayingViewController", "transportControlsView:didSelectRoutingButton:", {16, latest}},
    // Certainly gone in 14.2: 13.4 is the last of which it is known.
    {"UIDatePicker", "setHighlightsToday:", {earliest, 13}},
};

}  // namespace

std::string Versions::text() const {
  if (first == last) return std::to_string(first);
  if (first != earliest && last != latest)
    return std::to_string(first) + " to " + std::to_string(last);
  if (last != latest) return std::to_string(last) + " and earlier";
  return first != earliest ? std::to_string(first) + " and later" : std::string();
}

Versions versionsOf(std::string_view cls, std::string_view member) {
  for (const Row& row : table)
    if (row.cls == cls && row.member == member) return row.versions;
  return {};
}

int majorVersion(std::string_view version) {
  return takeNumber<int>(version).value_or(Versions::latest);  // only more digits are no number
}

int systemMajor() {
  return majorVersion(Phone::current().setup.systemVersion);
}

}  // namespace sim
