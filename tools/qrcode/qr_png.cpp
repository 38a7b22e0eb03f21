// SPDX-License-Identifier: MIT
#include "qr_png.h"

#include <png.h>
#include <qrencode.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

namespace kev::tool {
namespace {

constexpr unsigned int kUtf8 = 26;
constexpr png_byte kBlack = 0;
constexpr png_byte kWhite = 255;

struct FreeSymbol {
  void operator()(QRcode* code) const { QRcode_free(code); }
};
using Symbol = std::unique_ptr<QRcode, FreeSymbol>;

struct FreeInput {
  void operator()(QRinput* input) const { QRinput_free(input); }
};

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](unsigned char byte) { return byte < 0x80; });
}

// Byte mode throughout: a reader gets back exactly what was put in. Without the mark of UTF-8 readers guess,
// and take short texts with accents for Chinese.
Symbol Encode(std::string_view text, QRecLevel level) {
  const std::unique_ptr<QRinput, FreeInput> input(QRinput_new2(0, level));
  if (!input) return nullptr;
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  if (!IsAscii(text) && QRinput_appendECIheader(input.get(), kUtf8) != 0) return nullptr;
  if (QRinput_append(input.get(), QR_MODE_8, static_cast<int>(text.size()), bytes) != 0) return nullptr;
  return Symbol(QRcode_encodeInput(input.get()));
}

// One byte a pixel.
struct Picture {
  int side = 0;
  std::vector<png_byte> pixels;
};

Picture Draw(const QRcode& code) {
  Picture picture;
  picture.side = (code.width + 2 * kQuietZone) * kModulePixels;
  picture.pixels.assign(static_cast<std::size_t>(picture.side) * static_cast<std::size_t>(picture.side),
                        kWhite);
  const auto isDark = [&code](int pixelX, int pixelY) {
    const int x = pixelX / kModulePixels - kQuietZone, y = pixelY / kModulePixels - kQuietZone;
    if (x < 0 || y < 0 || x >= code.width || y >= code.width) return false;
    return (code.data[y * code.width + x] & 1) != 0;
  };
  std::size_t at = 0;
  for (int y = 0; y < picture.side; ++y)
    for (int x = 0; x < picture.side; ++x, ++at)
      if (isDark(x, y)) picture.pixels[at] = kBlack;
  return picture;
}

Result<std::string, WhyNot> ToPng(const Picture& picture) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = image.height = static_cast<png_uint_32>(picture.side);
  image.format = PNG_FORMAT_GRAY;
  std::string bytes(PNG_IMAGE_PNG_SIZE_MAX(image), '\0');
  png_alloc_size_t size = bytes.size();
  if (png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.pixels.data(), 0, nullptr) == 0)
    return WhyNot{image.message};
  bytes.resize(size);
  return bytes;
}

WhyNot TooLong(std::size_t size) {
  return {"the text has " + std::to_string(size) + " bytes, which is more than a QR code holds"};
}

}  // namespace

Result<std::string, WhyNot> QrPng(std::string_view text) {
  if (text.empty()) return WhyNot{"the text is empty"};
  int error = 0;
  for (const QRecLevel level : std::array{QR_ECLEVEL_M, QR_ECLEVEL_L}) {
    if (const Symbol code = Encode(text, level)) return ToPng(Draw(*code));
    error = errno;
    if (error != ERANGE) break;
  }
  if (error == ERANGE) return TooLong(text.size());
  return WhyNot{std::strerror(error)};
}

}  // namespace kev::tool
