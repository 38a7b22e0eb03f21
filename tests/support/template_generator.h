// SPDX-License-Identifier: MIT
// Random templates and documents. The same seed gives the same ones, on every machine.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>

#include "document/attribute_state.h"
#include "document/document.h"
#include "document/object_creation.h"

namespace kev::test {

class TemplateGenerator {
 public:
  explicit TemplateGenerator(std::uint32_t seed) : random_(seed) {}

  // A template as the designer or a careful hand writes it.
  std::string Sane();
  // One that uses every oddity of the grammar: zeros, steps back, braces in texts, repeated names, own
  // delimiters, text that gets lost.
  std::string Quirky();
  // Words of the grammar and bytes of any sort in no order at all.
  std::string Hostile();
  // Rows of all kinds in header, footer and data, made as the reader makes them.
  Document SaneDocument();

 private:
  int Below(int bound) { return static_cast<int>(random_() % static_cast<std::uint32_t>(bound)); }
  bool Chance(int percent) { return Below(100) < percent; }
  std::string Of(std::initializer_list<std::string_view> choices);
  std::string Number(int bound) { return std::to_string(Below(bound)); }
  std::string Word();
  std::string Text();
  std::string Position();
  std::string Colour();

  std::string Head(bool quirky);
  std::string Attributes();
  std::string SaneLine();
  std::string QuirkyLine();
  std::string Subsections(bool quirky);

  void RandomSettings(DocumentSettings& settings);
  void RandomState(AttributeState& state);
  NewObject RandomObject(AttributeState& state);

  std::mt19937 random_;
  int names_ = 0;
  std::vector<std::string> chart_;
};

}  // namespace kev::test
