// SPDX-License-Identifier: MIT
// Templates that are no plain text: a zip archive with one member, the plain template, whose first two bytes
// are overwritten so that nothing takes the file for an archive. Paths are native bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "document/settings.h"
#include "template/work_file.h"

namespace kev {

inline constexpr std::string_view kPackedComment = "Kev Encoded Template";
// In TempFolder: what is unpacked, and the folder of the copies that are unpacked.
inline constexpr std::string_view kUnpackedName = "ppp.kev";
inline constexpr std::string_view kUnpackingFolder = "\\Temp";

// 1 for a packed template, 0 for any other file, -1 for one shorter than 10 bytes or one that can't be read.
int IsPackedFile(const std::string& path);
int IsPackedBytes(std::string_view bytes);

// The packed form of a plain template. The same template gives the same bytes. `memberName` is the name that
// an archive program shows.
Result<std::string> PackedBytes(std::string_view plain, const std::string& memberName);
// The first member of the archive, whatever its name and the archive's comment are. The reason of a failure
// is kReasonPackedDamaged, or kReasonPackedTooLarge for one that is larger than any template.
Result<std::string> UnpackedBytes(std::string_view packed);

// Whether a document's FILEFORMAT asks for the packed form.
bool AsksForPacking(const DocumentSettings& settings);

// Packs a file; the packed one appears whole or not at all.
std::optional<FileFailure> PackTemplate(const std::string& plainPath, const std::string& packedPath);
// `path` becomes that of a plain file in the folder, which goes with the result. After a failure, with the
// reasons of UnpackedBytes or the system's, the path is unchanged and nothing stays behind.
Result<WorkFile> UnpackTemplate(std::string& path, const std::string& tempFolder);

// The plain text of a template, packed or not.
Result<std::string> ReadPlainTemplate(const std::string& path);
// The same by way of the working files, as the designer opens a template.
Result<std::string> ReadPlainTemplate(const std::string& path, const std::string& tempFolder);

}  // namespace kev
