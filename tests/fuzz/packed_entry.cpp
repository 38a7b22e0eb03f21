// SPDX-License-Identifier: MIT
// What opening does to a packed template of any bytes, and that packing any bytes gives a template which
// unpacks to the same.
#include "base/key_file.h"
#include "document/settings.h"
#include "fuzz_support.h"
#include "template/packed.h"

namespace {

using namespace kev;
using fuzz::Require;
using fuzz::Scratch;

// The plain text, straight and by way of the working files.
void CheckPlain(const std::string& path, std::string_view bytes) {
  const Result<std::string> plain = ReadPlainTemplate(path);
  const Result<std::string> worked = ReadPlainTemplate(path, Scratch().Path());
  Require(static_cast<bool>(plain) == static_cast<bool>(worked));
  Require(plain ? *plain == *worked : plain.Error().path == path && worked.Error().path == path);
  if (IsPackedFile(path) != 1) Require(*plain == bytes);
}

void CheckFiles(std::string_view bytes) {
  std::filesystem::create_directory(Scratch().Path("Temp"));
  const std::string file = Scratch().Made("plain.kev", bytes);
  Require(IsPackedFile(file) == IsPackedBytes(bytes));
  CheckPlain(file, bytes);
  const std::string packed = Scratch().Path("packed.kev");
  Require(!PackTemplate(file, packed) && IsPackedFile(packed) == 1);
  CheckPlain(packed, bytes);
  Require(*ReadPlainTemplate(packed) == bytes);
}

void CheckFormat(std::string_view head) {
  // Only the number 1 is the plain form.
  const DocumentSettings settings = ReadSettings(KeyFile(head), "A4");
  Require(AsksForPacking(settings) == (settings.Number(Setting::FILEFORMAT) != 1));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::TextOf(data, size);
  static_cast<void>(UnpackedBytes(bytes));
  const Result<std::string> packed = PackedBytes(bytes, "a.kev");
  Require(packed && IsPackedBytes(*packed) == 1);
  const Result<std::string> back = UnpackedBytes(*packed);
  Require(back && *back == bytes);
  CheckFormat(bytes);
  if (fuzz::IsOneOfEight(bytes)) CheckFiles(bytes);
  return 0;
}
