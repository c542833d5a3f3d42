#include "tests/model/PhoneModel.h"

#include <algorithm>
#include <cmath>

#include "simulator/machine/Journal.h"

namespace model {

Nanoseconds toNanoseconds(double seconds) {
  const double exact = seconds * 1e9;
  if (exact >= 0x1p63) return never;
  return std::llround(exact);
}

double toSeconds(Nanoseconds duration) {
  return double(duration) / 1e9;
}

double PhoneModel::wall() const {
  return wallAtZero + toSeconds(uptime);
}

void PhoneModel::moveWall(double distance) {
  wallAtZero = (wall() + distance) - toSeconds(uptime);
}

void PhoneModel::record(std::string text) {
  lines.push_back({uptime, std::move(text), hostRuns});
  if (hostRuns && deaths.contains(lines.size())) throw HostDied();
}

void PhoneModel::addAfter(Nanoseconds delay, Entry entry) {
  entry.due = uptime + std::min(delay, never - uptime);
  agenda.add(entry);
}

void PhoneModel::userSetsVolume(float level) {
  record("user volume " + sim::notation(level));
  setVolume(level);
}

void PhoneModel::setVolume(float level) {
  const float before = volume;
  volume = level > 0 ? std::min(level, 1.0f) : 0.0f;
  if (volume != before && !indicatorSuppressed) record("HUD volume " + sim::notation(volume));
}

void PhoneModel::hostSuppressesIndicator(bool suppress) {
  record("-[SBMediaController setSuppressHUD:" + sim::notation(suppress) + ']');
  indicatorSuppressed = suppress;
}

void PhoneModel::hostSetsVolume(double level) {
  record("-[SBVolumeControl setVolume:" + sim::notation(float(level)) +
         " forCategory:\"Audio/Video\"]");
  setVolume(float(level));
}

void PhoneModel::load(std::vector<Track> list) {
  stop();
  tracks = std::move(list);
  play();
}

void PhoneModel::play() {
  if (playing) return;
  if (!track) track = 0;
  playing = true;
  startedAt = uptime - pausedAt;
  record("player play " + shownTitle());
  scheduleTrackEnd();
  musicChanged();
}

void PhoneModel::pause() {
  if (!playing) return;
  pausedAt = elapsed();
  playing = false;
  record("player pause");
  scheduleTrackEnd();
  musicChanged();
}

void PhoneModel::next() {
  if (track) begin(*track + 1, uptime);
}

void PhoneModel::previous() {
  if (track) begin(*track == 0 ? 0 : *track - 1, uptime);
}

void PhoneModel::seek(double position) {
  if (!track) return;
  const Nanoseconds target = std::min(toNanoseconds(position), tracks[*track].length);
  pausedAt = target;
  startedAt = uptime - target;
  record("player seek " + sim::notation(toSeconds(target)));
  scheduleTrackEnd();
  musicChanged();
}

void PhoneModel::trackEnds() {
  begin(repeatsOne ? *track : *track + 1, startedAt + tracks[*track].length);
}

void PhoneModel::scheduleTrackEnd() {
  agenda.remove(Event::trackEnds);
  if (!playing) return;
  const Nanoseconds end = startedAt + tracks[*track].length;
  agenda.add({std::max(end, uptime), Event::trackEnds});
}

Nanoseconds PhoneModel::elapsed() const {
  if (!playing) return pausedAt;
  return std::min(uptime - startedAt, tracks[*track].length);
}

void PhoneModel::begin(std::size_t index, Nanoseconds when) {
  if (index >= tracks.size()) return stop();
  track = index;
  startedAt = when;
  pausedAt = 0;
  record("player track " + shownTitle());
  scheduleTrackEnd();
  musicChanged();
}

void PhoneModel::stop() {
  if (!track) return;
  track.reset();
  playing = false;
  pausedAt = 0;
  record("player stop");
  scheduleTrackEnd();
  musicChanged();
}

void PhoneModel::musicChanged() {
  addAfter(0, {0, Event::mediaAnnounced});
}

std::string PhoneModel::shownTitle() const {
  const auto& title = tracks[*track].title;
  return title ? sim::quoted(*title) : "nil";
}

}  // namespace model
