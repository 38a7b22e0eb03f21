// SPDX-License-Identifier: MIT
// Any bytes as a key file and as the head of a template.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/key_file.h"
#include "document/settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kev;
  const KeyFile keys(std::string_view(reinterpret_cast<const char*>(data), size));
  for (const KeyFile::Entry& entry : keys.Entries()) {
    if (keys.Line(entry.key) == 0 || keys.Line(entry.key) > entry.line) std::abort();
  }
  const DocumentSettings settings = ReadSettings(keys, "A4");
  if (settings[Setting::Open].size() != 1 || settings[Setting::Close].size() != 1) std::abort();
  if (settings.SpacingTwips() == 0) std::abort();
  for (const Setting id : SettingWriteOrder()) {
    if (SettingIsPrinted(settings, id) && PrintedValue(settings, id).size() > size + 400) std::abort();
  }
  return 0;
}
