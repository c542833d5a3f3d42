#include "simulator/radios/Radios.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

// The first byte marks addresses that no maker has given out.
std::string addressOf(long number) {
  std::array<char, 24> text;
  std::snprintf(text.data(), text.size(), "02:00:00:00:%02lX:%02lX", number >> 8 & 0xff,
                number & 0xff);
  return text.data();
}

}  // namespace

Radios::Radios(Phone& phone) : phone_(phone) {
  phone.survives("radios", {[this] { return save(); },
                            [this](const nlohmann::json& saved) { restore(saved); }});
}

Radios& Radios::current() {
  return Phone::current().state<Radios>();
}

void Radios::waitForWatch() {
  constexpr double longestWait = 5;  // seconds
  if (!hasPairedWatch_) return;
  Clock& clock = phone_.clock;
  clock.advanceTo(clock.uptime() + nanoseconds(longestWait));
}

void Radios::setAirplaneMode(bool on) {
  if (on != airplaneMode_) wifiInAirplaneMode_ = false;
  airplaneMode_ = on;
}

void Radios::setBluetooth(bool on) {
  bluetoothOn_ = on;
  if (on || peers_.empty()) return;
  peers_.clear();
  tellObservers();
}

void Radios::connect(const std::vector<std::string>& names) {
  bluetoothOn_ = true;
  peers_.clear();
  for (const std::string& name : names) peers_.push_back({name, addressOf(++lastAddress_)});
  tellObservers();
}

void Radios::disconnect(std::string_view address) {
  const auto isGone = [address](const Peer& peer) { return peer.address == address; };
  if (std::erase_if(peers_, isGone) != 0) tellObservers();
}

nlohmann::json Radios::save() const {
  auto peers = nlohmann::json::array();
  for (const Peer& peer : peers_) peers.push_back({{"name", peer.name}, {"address", peer.address}});
  return {{"airplaneMode", airplaneMode_},
          {"wifiOn", wifiOn_},
          {"wifiInAirplaneMode", wifiInAirplaneMode_},
          {"mobileDataOn", mobileDataOn_},
          {"hasPairedWatch", hasPairedWatch_},
          {"bluetoothOn", bluetoothOn_},
          {"peers", std::move(peers)},
          {"lastAddress", lastAddress_}};
}

void Radios::restore(const nlohmann::json& saved) {
  airplaneMode_ = saved.at("airplaneMode").get<bool>();
  wifiOn_ = saved.at("wifiOn").get<bool>();
  wifiInAirplaneMode_ = saved.at("wifiInAirplaneMode").get<bool>();
  mobileDataOn_ = saved.at("mobileDataOn").get<bool>();
  hasPairedWatch_ = saved.at("hasPairedWatch").get<bool>();
  bluetoothOn_ = saved.at("bluetoothOn").get<bool>();
  lastAddress_ = saved.at("lastAddress").get<long>();
  peers_.clear();
  for (const auto& peer : saved.at("peers"))
    peers_.push_back({peer.at("name").get<std::string>(), peer.at("address").get<std::string>()});
}

}  // namespace sim
