// SPDX-License-Identifier: MIT
// Any bytes as the head of a picture: a size is one that a page has room for, and bytes behind the head that
// told it do not change it.
#include "app/image_size.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kev;
  using fuzz::Require;
  const std::string_view bytes = fuzz::TextOf(data, size);
  const std::optional<TextExtent> extent = ImageSize(bytes);
  if (!extent) return 0;
  Require(extent->Width > 0 && extent->Width <= 15'000'000);
  Require(extent->Height > 0 && extent->Height <= 15'000'000);
  if (bytes.find('<') != std::string_view::npos) return 0;
  const std::optional<TextExtent> longer = ImageSize(std::string(bytes) + "more");
  Require(longer && longer->Width == extent->Width && longer->Height == extent->Height);
  return 0;
}
