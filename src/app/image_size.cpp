// SPDX-License-Identifier: MIT
#include "app/image_size.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr std::size_t kHeadLength = 1024UL * 1024;
constexpr double kTwipsPerPixel = 15;
// No page is wider; a file that claims more is damaged or means harm.
constexpr double kLargestSide = 1'000'000 * kTwipsPerPixel;

std::uint32_t Byte(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U;
}
std::uint32_t Big16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) << 8 | Byte(bytes, at + 1);
}
std::uint32_t Big32(std::string_view bytes, std::size_t at) {
  return Big16(bytes, at) << 16 | Big16(bytes, at + 2);
}
std::uint32_t Little16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) | Byte(bytes, at + 1) << 8;
}
std::uint32_t Little32(std::string_view bytes, std::size_t at) {
  return Little16(bytes, at) | Little16(bytes, at + 2) << 16;
}

std::optional<TextExtent> Checked(double width, double height) {
  const auto good = [](double side) { return side > 0 && side <= kLargestSide; };
  if (!good(width) || !good(height)) return std::nullopt;
  return TextExtent{width, height};
}

std::optional<TextExtent> Pixels(double width, double height) {
  return Checked(width * kTwipsPerPixel, height * kTwipsPerPixel);
}

std::optional<TextExtent> PngSize(std::string_view bytes) {
  if (bytes.size() < 24 || bytes.substr(12, 4) != "IHDR") return std::nullopt;
  return Pixels(Big32(bytes, 16), Big32(bytes, 20));
}

std::optional<TextExtent> GifSize(std::string_view bytes) {
  if (bytes.size() < 10) return std::nullopt;
  return Pixels(Little16(bytes, 6), Little16(bytes, 8));
}

// The height is negative where the rows stand from the top down.
std::optional<TextExtent> BmpSize(std::string_view bytes) {
  const bool old = Little32(bytes, 14) == 12;
  if (bytes.size() < (old ? 22 : 26)) return std::nullopt;
  if (old) return Pixels(Little16(bytes, 18), Little16(bytes, 20));
  const auto height = static_cast<std::int32_t>(Little32(bytes, 22));
  return Pixels(static_cast<std::int32_t>(Little32(bytes, 18)), height < 0 ? -double{1} * height : height);
}

bool IsFrameHeader(std::uint32_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<TextExtent> JpegSize(std::string_view bytes) {
  for (std::size_t at = 2; at + 9 <= bytes.size();) {
    if (Byte(bytes, at) != 0xFF) return std::nullopt;
    const std::uint32_t marker = Byte(bytes, at + 1);
    if (marker == 0xFF) {
      ++at;
    } else if (IsFrameHeader(marker)) {
      return Pixels(Big16(bytes, at + 7), Big16(bytes, at + 5));
    } else if (Big16(bytes, at + 2) < 2) {
      return std::nullopt;
    } else {
      at += 2 + Big16(bytes, at + 2);
    }
  }
  return std::nullopt;
}

// The value of an attribute of the tag, without its quotes.
std::string_view Attribute(std::string_view tag, std::string_view name) {
  for (std::size_t at = tag.find(name); at != std::string_view::npos; at = tag.find(name, at + 1)) {
    constexpr std::string_view kWhite = " \t\r\n";
    if (at == 0 || kWhite.find(tag[at - 1]) == std::string_view::npos) continue;
    std::size_t next = tag.find_first_not_of(kWhite, at + name.size());
    if (next == std::string_view::npos || tag[next] != '=') continue;
    next = tag.find_first_not_of(kWhite, next + 1);
    if (next == std::string_view::npos || (tag[next] != '"' && tag[next] != '\'')) continue;
    const std::size_t end = tag.find(tag[next], next + 1);
    if (end != std::string_view::npos) return tag.substr(next + 1, end - next - 1);
  }
  return {};
}

// A length with its unit; 0 where it is relative to something else.
double SvgTwips(std::string_view length) {
  constexpr std::array<std::pair<std::string_view, double>, 7> kUnits = {{{"", kTwipsPerPixel},
                                                                          {"px", kTwipsPerPixel},
                                                                          {"pt", 20},
                                                                          {"pc", 240},
                                                                          {"in", 1440},
                                                                          {"cm", 1440 / 2.54},
                                                                          {"mm", 1440 / 25.4}}};
  length = Trim(length);
  const std::size_t digits = length.find_last_of("0123456789.") + 1;
  for (const auto& [unit, twips] : kUnits) {
    if (length.substr(digits) == unit) return NumericPrefix(length.substr(0, digits)) * twips;
  }
  return 0;
}

std::optional<TextExtent> SvgSize(std::string_view bytes) {
  const std::size_t start = bytes.find("<svg");
  if (start == std::string_view::npos) return std::nullopt;
  const std::string_view tag = bytes.substr(start, bytes.find('>', start) - start);
  return Checked(SvgTwips(Attribute(tag, "width")), SvgTwips(Attribute(tag, "height")));
}

struct Format {
  std::string_view signature;
  std::optional<TextExtent> (*size)(std::string_view);
};
constexpr std::array<Format, 5> kFormats = {{{"\x89PNG\r\n\x1A\n", PngSize},
                                             {"GIF8", GifSize},
                                             {"BM", BmpSize},
                                             {"\xFF\xD8\xFF", JpegSize},
                                             {"", SvgSize}}};

}  // namespace

std::optional<TextExtent> ImageSize(std::string_view head) {
  for (const Format& format : kFormats) {
    if (head.starts_with(format.signature)) return format.size(head);
  }
  return std::nullopt;
}

std::optional<TextExtent> ImageSizeOfFile(const std::string& path) {
  if (!FileExists(path)) return std::nullopt;
  std::error_code failed;
  const std::uintmax_t size = std::filesystem::file_size(path, failed);
  if (failed) return std::nullopt;
  // Most pictures are far smaller, and a page asks for each of its own.
  std::string head(std::min<std::uintmax_t>(size, kHeadLength), '\0');
  std::ifstream stream(path, std::ios::binary);
  stream.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(stream.gcount()));
  return ImageSize(head);
}

}  // namespace kev
