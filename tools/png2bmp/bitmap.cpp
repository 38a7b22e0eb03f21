// SPDX-License-Identifier: MIT
#include "bitmap.h"

#include <png.h>

#include <cstdint>

namespace kev::tool {
namespace {

constexpr std::uint32_t kHeaderSize = 54;
constexpr std::uint32_t kInfoSize = 40;
constexpr std::uint32_t kBitsPerPixel = 24;
constexpr std::uint32_t kDotsPerMetre = 3780;  // 96 to the inch
constexpr png_uint_32 kLongestSide = 65535;

// Frees what the reader holds, however the reading ended.
struct Reader {
  png_image image{};

  Reader() { image.version = PNG_IMAGE_VERSION; }
  ~Reader() { png_image_free(&image); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;
};

bool HasSignature(std::string_view png) {
  constexpr std::size_t kSignature = 8;
  return png.size() >= kSignature &&
         png_sig_cmp(reinterpret_cast<png_const_bytep>(png.data()), 0, kSignature) == 0;
}

// Little-endian.
void Put(std::string& bytes, std::uint32_t value, int count) {
  for (int byte = 0; byte < count; ++byte)
    bytes.push_back(static_cast<char>(value >> (8 * byte) & 0xFFU));
}

std::string Header(std::uint32_t width, std::uint32_t height, std::uint32_t pixelBytes) {
  std::string header = "BM";
  Put(header, kHeaderSize + pixelBytes, 4);
  Put(header, 0, 4);
  Put(header, kHeaderSize, 4);
  Put(header, kInfoSize, 4);
  Put(header, width, 4);
  Put(header, height, 4);
  Put(header, 1, 2);
  Put(header, kBitsPerPixel, 2);
  Put(header, 0, 4);
  Put(header, pixelBytes, 4);
  Put(header, kDotsPerMetre, 4);
  Put(header, kDotsPerMetre, 4);
  Put(header, 0, 4);
  Put(header, 0, 4);
  return header;
}

}  // namespace

Result<std::string, WhyNot> BitmapOfPng(std::string_view png) {
  if (!HasSignature(png)) return WhyNot{"this is no PNG picture"};
  Reader reader;
  png_image& image = reader.image;
  if (png_image_begin_read_from_memory(&image, png.data(), png.size()) == 0) return WhyNot{image.message};
  image.format = PNG_FORMAT_BGR;
  // Rows are a multiple of four bytes long.
  const std::size_t stride = (std::size_t{image.width} * 3 + 3) / 4 * 4;
  if (image.width > kLongestSide || image.height > kLongestSide || stride * image.height > kLargestBitmap)
    return WhyNot{"the picture is too large"};
  std::string bytes = Header(image.width, image.height, static_cast<std::uint32_t>(stride * image.height));
  bytes.resize(kHeaderSize + stride * image.height);
  const png_color white = {255, 255, 255};
  // The lowest row stands first.
  if (png_image_finish_read(&image, &white, bytes.data() + kHeaderSize, -static_cast<png_int_32>(stride),
                            nullptr) == 0)
    return WhyNot{image.message};
  return bytes;
}

}  // namespace kev::tool
