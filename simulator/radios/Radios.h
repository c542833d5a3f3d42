// The phone's radios: airplane mode, what is on, and what Bluetooth is connected to.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/machine/Observed.h"
#include "simulator/machine/Phone.h"

namespace sim {

// Its observers are told of every change of the connected devices.
class Radios : public Observed {
 public:
  struct Peer {
    std::string name;
    std::string address;  // "02:00:00:00:00:01"; unlike names, no two are alike
  };

  explicit Radios(Phone& phone);
  Radios(const Radios&) = delete;
  Radios& operator=(const Radios&) = delete;

  // The radios of Phone::current(), made on first use. Processes of their own run them, so all of
  // their state survives a restart of the host.
  static Radios& current();

  bool isAirplaneModeOn() const { return airplaneMode_; }
  // Leaves Bluetooth as it is, as phones do whose owner has once kept it on in airplane mode.
  void setAirplaneMode(bool on);

  // Airplane mode switches both off. Wi-Fi can be switched on again meanwhile; afterwards each is
  // as it was before.
  bool isWifiOn() const { return airplaneMode_ ? wifiInAirplaneMode_ : wifiOn_; }
  void setWifi(bool on) { (airplaneMode_ ? wifiInAirplaneMode_ : wifiOn_) = on; }
  bool isMobileDataOn() const { return mobileDataOn_ && !airplaneMode_; }
  void setMobileData(bool on) { mobileDataOn_ = on; }

  // A watch that takes airplane mode over, and is out of reach.
  void setHasPairedWatch(bool has) { hasPairedWatch_ = has; }
  // Keeps the main thread waiting for the watch, if there is one: what is due meanwhile is late.
  void waitForWatch();

  bool isBluetoothOn() const { return bluetoothOn_; }
  // Off ends every connection. On again, none comes back by itself.
  void setBluetooth(bool on);

  // The owner turns Bluetooth on and connects devices of these names, in this order, instead of
  // those that were connected. Names may repeat.
  void connect(const std::vector<std::string>& names);
  // Nothing happens when there is no such connection.
  void disconnect(std::string_view address);
  const std::vector<Peer>& peers() const { return peers_; }

 private:
  nlohmann::json save() const;
  void restore(const nlohmann::json& saved);

  Phone& phone_;
  bool airplaneMode_ = false;
  bool wifiOn_ = true;
  bool wifiInAirplaneMode_ = false;
  bool mobileDataOn_ = true;
  bool hasPairedWatch_ = false;
  bool bluetoothOn_ = true;
  std::vector<Peer> peers_;  // connected, in order of connection
  long lastAddress_ = 0;
};

}  // namespace sim
