// SPDX-License-Identifier: MIT
// The sentences that the program itself gives as the reason of a failure. The command-line tools print them
// as they stand; the window shows them in the language of its user.
#pragma once

namespace kev {

inline constexpr const char* kReasonOutOfMemory = "out of memory";
inline constexpr const char* kReasonNotRegularFile = "not a regular file";
inline constexpr const char* kReasonTooManyObjects = "a template holds at most 2001 objects";
inline constexpr const char* kReasonTooManyColumns = "a template holds at most 100 columns";
inline constexpr const char* kReasonTooManyParts = "a text has more than 200 parts";
inline constexpr const char* kReasonTextsTooLarge = "the texts of the template are too large";
inline constexpr const char* kReasonBlocksTooOften = "the blocks of the template are applied too often";
inline constexpr const char* kReasonPackedDamaged = "the encoded template is damaged";
inline constexpr const char* kReasonPackedTooLarge = "the encoded template holds more than 64 megabytes";
inline constexpr const char* kReasonNotPacked = "the template can't be encoded";

}  // namespace kev
