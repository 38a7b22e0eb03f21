// SPDX-License-Identifier: MIT
// Shows how far a read has come: a line count in the progress window, each object in the status line.
#pragma once

#include <string>

#include "app/language.h"
#include "base/host.h"
#include "base/text_numbers.h"
#include "template/reader.h"

namespace kev {

class HostProgress final : public ReadProgress {
 public:
  HostProgress(Host& host, const LanguageTexts& texts) : host_(host), texts_(texts) {}
  // A read that throws leaves no progress window behind.
  ~HostProgress() override { End(); }
  HostProgress(const HostProgress&) = delete;
  HostProgress& operator=(const HostProgress&) = delete;

  void Begin(int lines) override {
    shown_ = true;
    host_.BeginProgress(texts_.Text(kTextStatusReading), lines);
    host_.ShowStatus(texts_.Text(kTextStatusReading));
  }
  void Line(int number) override { host_.StepProgress(number, texts_.Text(kTextStatusReading)); }
  void Object(int row, ObjectKind kind) override {
    host_.ShowStatus(std::to_string(row) + " " + texts_.Text(kTextStatusReadingObject) + ": " +
                     std::string(KindText(kind)));
  }
  void End() override {
    if (!shown_) return;
    shown_ = false;
    host_.EndProgress();
    host_.ShowStatus("");
  }

 private:
  Host& host_;
  const LanguageTexts& texts_;
  bool shown_ = false;
};

}  // namespace kev
