// SPDX-License-Identifier: MIT
// Shows how far the reading of a large data file has come, and lets the user stop it.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "base/host.h"

namespace kev {

// Watches a LineReader. A file that is read in one piece shows nothing.
class SampleProgress {
 public:
  // The host outlives it.
  SampleProgress(Host& host, std::string text) : host_(host), text_(std::move(text)) {}
  ~SampleProgress() {
    if (shown_) host_.EndProgress();
  }
  SampleProgress(const SampleProgress&) = delete;
  SampleProgress& operator=(const SampleProgress&) = delete;

  // False once the user has had enough.
  bool Go(std::uint64_t done, std::uint64_t size) {
    if (done >= size) return true;
    if (!shown_) {
      shown_ = true;
      host_.BeginProgress(text_, static_cast<int>(size / kUnit));
      host_.OfferStop();
    }
    host_.StepProgress(static_cast<int>(done / kUnit), text_);
    return !host_.ProgressStopped();
  }

 private:
  // Bytes: whatever the size of a file, its count fits.
  static constexpr std::uint64_t kUnit = 64 * 1024;

  Host& host_;
  std::string text_;
  bool shown_ = false;
};

}  // namespace kev
