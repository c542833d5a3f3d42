#include "simulator/mediaremote/Player.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "simulator/machine/Phone.h"

namespace sim {

std::string notation(const Track& track) {
  return track.title ? sim::quoted(*track.title) : "nil";
}

Player::Player(Phone& phone) : phone_(phone) {
  phone.survives("player", {[this] { return save(); },
                            [this](const nlohmann::json& saved) { restore(saved); }});
}

Player& Player::current() {
  return Phone::current().state<Player>();
}

void Player::load(std::vector<Track> tracks) {
  if (track() != nullptr) stop();
  tracks_ = std::move(tracks);
  application_ = musicApplication;
}

void Player::takeOver(std::string application, Track track) {
  application_ = std::move(application);
  tracks_ = {std::move(track)};
  playing_ = true;
  phone_.journal.record("player application " + sim::quoted(application_));
  begin(0, phone_.clock.uptime());
}

void Player::play() {
  if (tracks_.empty() || playing_) return;
  if (track() == nullptr) index_ = 0;
  playing_ = true;
  startedAt_ = phone_.clock.uptime() - pausedAt_;
  phone_.journal.record("player play " + notation(*track()));
  scheduleEnd();
  tellObservers();
}

void Player::playOnceBooted() {
  if (booted_)
    play();
  else
    waitsForBoot_ = true;
}

void Player::hostDidBoot() {
  booted_ = true;
  if (!waitsForBoot_) return;
  phone_.queue.addNow([this] {
    waitsForBoot_ = false;
    play();
  });
}

void Player::pause() {
  if (!playing_) return;
  pausedAt_ = elapsed();
  playing_ = false;
  phone_.journal.record("player pause");
  scheduleEnd();
  tellObservers();
}

void Player::togglePlayPause() {
  if (playing_)
    pause();
  else
    play();
}

void Player::nextTrack() {
  if (track() != nullptr) begin(index_ + 1, phone_.clock.uptime());
}

void Player::previousTrack() {
  if (track() != nullptr) begin(index_ == 0 ? 0 : index_ - 1, phone_.clock.uptime());
}

void Player::stop() {
  if (track() == nullptr) return;
  index_ = nothing;
  playing_ = false;
  pausedAt_ = 0;
  phone_.journal.record("player stop");
  scheduleEnd();
  tellObservers();
}

void Player::seek(double position) {
  if (track() == nullptr) return;
  const Nanoseconds target = std::clamp<Nanoseconds>(nanoseconds(position), 0, track()->length);
  pausedAt_ = target;
  startedAt_ = phone_.clock.uptime() - target;
  phone_.journal.record("player seek " + notation(seconds(target)));
  scheduleEnd();
  tellObservers();
}

const Track* Player::track() const {
  return index_ == nothing ? nullptr : &tracks_[index_];
}

const Track* Player::following() const {
  if (track() == nullptr) return nullptr;
  const std::size_t next = indexAfterEnd();
  if (next < tracks_.size()) return &tracks_[next];
  return repeatsAll_ ? &tracks_.front() : nullptr;
}

double Player::position() const {
  return track() == nullptr ? 0 : seconds(elapsed());
}

Nanoseconds Player::elapsed() const {
  if (!playing_) return pausedAt_;
  return std::min(phone_.clock.uptime() - startedAt_, track()->length);
}

void Player::begin(std::size_t index, Nanoseconds when) {
  if (repeatsAll_ && index == tracks_.size()) index = 0;
  if (index >= tracks_.size()) {
    stop();
    return;
  }
  index_ = index;
  startedAt_ = when;
  pausedAt_ = 0;
  phone_.journal.record("player track " + notation(*track()));
  scheduleEnd();
  tellObservers();
}

// Gapless: the next track starts where this one ended, even when the queue comes to it later,
// as after the time in which the host was gone.
void Player::trackDidEnd() {
  begin(indexAfterEnd(), deadline(startedAt_, track()->length));
}

void Player::scheduleEnd() {
  phone_.queue.cancel(end_);
  end_ = 0;
  if (playing_)
    end_ = phone_.queue.add(deadline(startedAt_, track()->length), [this] { trackDidEnd(); });
}

}  // namespace sim
