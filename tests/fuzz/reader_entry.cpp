// SPDX-License-Identifier: MIT
// What opening and saving do to any bytes: read, derive the geometry, write, read again, write again. The two
// saved texts must be equal.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "document/sections.h"
#include "template/reader.h"
#include "template/template_check.h"
#include "template/writer.h"

namespace {

using namespace kev;

std::optional<std::string> Saved(std::string_view bytes) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  Result<ReadOutcome> outcome = ReadTemplateBytes(bytes, {measurer, pictures});
  if (!outcome) return std::nullopt;
  DeriveGeometry(outcome->Read);
  WriteReport report;
  return TemplateText(outcome->Read, {}, report);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string check = CheckTemplateBytes(bytes);
  if (check.size() != 5 || (RefusalOf(check) == Refusal::NoSections && check.starts_with("111")))
    std::abort();
  const std::optional<std::string> first = Saved(bytes);
  if (!first) return 0;
  Saved(*first);
  return 0;
}
