// SPDX-License-Identifier: MIT
// What opening does to a packed template of any bytes, and that packing any bytes gives a template which
// unpacks to the same.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fuzz_support.h"
#include "template/packed.h"

using namespace kev;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  static_cast<void>(kev::UnpackedBytes(bytes));
  const kev::Result<std::string> packed = kev::PackedBytes(bytes, "a.kev");
  if (!packed || kev::IsPackedBytes(*packed) != 1) std::abort();
  const kev::Result<std::string> back = kev::UnpackedBytes(*packed);
  if (!back || *back != bytes) std::abort();

  std::filesystem::create_directory(fuzz::Scratch().Path("Temp"));
  const std::string file = fuzz::Scratch().Made("plain.kev", bytes);
  const std::string packedFile = fuzz::Scratch().Path("packed.kev");
  if (kev::PackTemplate(file, packedFile) || kev::IsPackedFile(packedFile) != 1) std::abort();
  const kev::Result<std::string> plain = kev::ReadPlainTemplate(packedFile, fuzz::Scratch().Path());
  if (!plain || *plain != bytes) std::abort();
  return 0;
}
