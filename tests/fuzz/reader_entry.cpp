// SPDX-License-Identifier: MIT
// What opening does to any bytes, and saving and opening what was saved to one input of eight.
#include "document/sections.h"
#include "fuzz_support.h"
#include "template/reader.h"
#include "template/template_check.h"
#include "template/writer.h"

namespace {

using namespace kev;

std::optional<Document> Opened(std::string_view bytes) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  Result<ReadOutcome> outcome = ReadTemplateBytes(bytes, {measurer, pictures});
  if (!outcome) return std::nullopt;
  DeriveGeometry(outcome->Read);
  return std::move(outcome->Read);
}

std::string Saved(Document& document) {
  WriteReport report;
  return TemplateText(document, {}, report);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::TextOf(data, size);
  const std::string check = CheckTemplateBytes(bytes);
  fuzz::Require(check.size() == 5);
  fuzz::Require(RefusalOf(check) != Refusal::NoSections || !check.starts_with("111"));
  std::optional<Document> document = Opened(bytes);
  if (!document || !fuzz::IsOneOfEight(bytes)) return 0;
  if (std::optional<Document> again = Opened(Saved(*document))) static_cast<void>(Saved(*again));
  return 0;
}
