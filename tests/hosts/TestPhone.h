// A phone with a root folder of its own, for one test.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/machine/Phone.h"

namespace sim {

class TestPhone : public testing::Test {
 protected:
  void advance(double duration) {
    phone.queue.runUntil(phone.clock.uptime() + nanoseconds(duration));
  }

  // The journal's texts so far, without times.
  std::vector<std::string> journal() const {
    std::vector<std::string> texts;
    for (const auto& entry : phone.journal.entries()) texts.push_back(entry.text);
    return texts;
  }

  long count(const std::string& text) const {
    const auto texts = journal();
    return std::count(texts.begin(), texts.end(), text);
  }

  // Seconds of the first entry of that text; -1 when there is none.
  double timeOf(const std::string& text) const {
    for (const auto& entry : phone.journal.entries())
      if (entry.text == text) return seconds(entry.time);
    return -1;
  }

 private:
  TemporaryFolder root_;

 protected:
  Phone phone{root_.path()};
};

}  // namespace sim
