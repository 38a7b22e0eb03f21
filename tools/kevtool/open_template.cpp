// SPDX-License-Identifier: MIT
#include <iostream>

#include "base/files.h"
#include "commands.h"
#include "local_pictures.h"
#include "template/template_check.h"

namespace kev::tool {
namespace {

std::string_view RefusalReason(Refusal refusal) {
  switch (refusal) {
    case Refusal::NoSections:
      return "no template: it has no [HEADER], [DATA] or [FOOTER] line";
    case Refusal::NoHeader:
      return "no template: it has no [HEADER] line";
    case Refusal::WrongStructure:
      return "its structure is not that of a template";
    case Refusal::None:
      break;
  }
  return "";
}

}  // namespace

std::optional<ReadOutcome> Open(const std::string& file) {
  const Result<std::string> bytes = ReadWholeFile(file);
  if (!bytes) {
    std::cerr << file << ": " << bytes.Error().reason << '\n';
    return std::nullopt;
  }
  if (const Refusal refusal = RefusalOf(CheckTemplateBytes(*bytes)); refusal != Refusal::None) {
    std::cerr << file << ": " << RefusalReason(refusal) << '\n';
    return std::nullopt;
  }
  const BuiltInMeasurer measurer;
  LocalPictures pictures(FolderOf(AbsolutePath(file)));
  Result<ReadOutcome> outcome = ReadTemplateBytes(*bytes, {measurer, pictures});
  if (!outcome) {
    std::cerr << file << ": " << outcome.Error().reason << '\n';
    return std::nullopt;
  }
  return std::move(*outcome);
}

}  // namespace kev::tool
