// SPDX-License-Identifier: MIT
#include <iostream>

#include "base/files.h"
#include "commands.h"
#include "local_pictures.h"
#include "template/packed.h"
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

Opened Open(const std::string& file) {
  KnownFolders known;
  return Open(file, known, std::cerr);
}

Opened Open(const std::string& file, KnownFolders& known, std::ostream& errors) {
  Opened opened;
  const auto refuse = [&](std::string_view reason) {
    errors << file << ": " << reason << '\n';
    opened.Refused = reason;
  };
  Result<std::string> bytes = ReadPlainTemplate(file);
  if (!bytes) {
    refuse(bytes.Error().reason);
    return opened;
  }
  opened.Bytes = std::move(*bytes);
  opened.Check = CheckTemplateBytes(opened.Bytes);
  if (const Refusal refusal = RefusalOf(opened.Check); refusal != Refusal::None) {
    refuse(RefusalReason(refusal));
    return opened;
  }
  const BuiltInMeasurer measurer;
  LocalPictures pictures(FolderOf(AbsolutePath(file)), known);
  Result<ReadOutcome> outcome = ReadTemplateBytes(opened.Bytes, {measurer, pictures});
  if (outcome) {
    opened.Outcome = std::move(*outcome);
  } else {
    refuse(outcome.Error().reason);
  }
  return opened;
}

}  // namespace kev::tool
