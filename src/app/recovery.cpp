// SPDX-License-Identifier: MIT
#include "app/recovery.h"

namespace kev {

std::string RecoveryName(const ClockTime&, std::string_view) {
  return {};
}
std::string RecoveredTitle(std::string_view) {
  return {};
}
Recovery::Recovery() = default;
Recovery::~Recovery() = default;
std::optional<FileFailure> Recovery::Write(const std::string&, const ClockTime&, const std::string&,
                                           const Document&) {
  return std::nullopt;
}
void Recovery::Delete() {}
void Recovery::LeaveBehind() {}
std::vector<std::string> RecoveryFilesIn(const std::string&) {
  return {};
}

}  // namespace kev
