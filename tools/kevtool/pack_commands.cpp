// SPDX-License-Identifier: MIT
#include <iostream>

#include "base/files.h"
#include "commands.h"
#include "template/packed.h"

namespace kev::tool {
namespace {

int Refuse(const std::string& file, const std::string& reason) {
  std::cerr << file << ": " << reason << '\n';
  return kRefused;
}

}  // namespace

// A file that is packed already would give one that nothing can open.
int Pack(const std::string& in, const std::string& out) {
  const Result<std::string> bytes = ReadWholeFile(in);
  if (!bytes) return Refuse(in, bytes.Error().reason);
  if (IsPackedBytes(*bytes) == 1) return Refuse(in, "is packed already");
  if (const auto failure = PackTemplate(in, out)) return Refuse(failure->path, failure->reason);
  return kGood;
}

int Unpack(const std::string& in, const std::string& out) {
  const Result<std::string> bytes = ReadWholeFile(in);
  if (!bytes) return Refuse(in, bytes.Error().reason);
  if (IsPackedBytes(*bytes) != 1) return Refuse(in, "is no packed template");
  const Result<std::string> plain = UnpackedBytes(*bytes);
  if (!plain) return Refuse(in, plain.Error().reason);
  if (const auto failure = WriteWholeFile(out, *plain)) return Refuse(failure->path, failure->reason);
  return kGood;
}

}  // namespace kev::tool
