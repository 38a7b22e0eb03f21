// SPDX-License-Identifier: MIT
// Shows how far a read has come: a line count in the progress window, each object in the status line.
#pragma once

#include <string>

#include "app/language.h"
#include "base/code_page.h"
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
  void Line(int number) override {
    line_ = number;
    host_.StepProgress(number, texts_.Text(kTextStatusReading));
  }
  void Object(int row, ObjectKind kind) override {
    const std::string text = std::to_string(row) + " " + texts_.Text(kTextStatusReadingObject) + ": " +
                             CodePage::Default().Lower(KindText(kind));
    host_.ShowStatus(text);
    host_.StepProgress(line_, text);
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
  int line_ = 0;
  bool shown_ = false;
};

}  // namespace kev
