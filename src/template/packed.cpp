// SPDX-License-Identifier: MIT
#include "template/packed.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <utility>

#include "base/descriptor.h"
#include "base/files.h"
#include "base/reasons.h"

namespace kev {
namespace {

constexpr std::string_view kArchiveStart = "PK";
constexpr std::string_view kPackedStart = "60";
constexpr std::size_t kShortest = 10;
constexpr double kPlainFormat = 1;
// What this program leaves at the start of an archive, and two signatures of earlier forms, which are packed
// templates that nothing can unpack.
constexpr auto kSignatures =
    std::to_array<std::string_view>({"\x36\x30\x03\x04", "\x50\x50\x34\x20", "\x54\x48\x34\x20"});
// The earliest day that an archive can name: no clock gets into the bytes.
constexpr zip_uint16_t kNoDate = 0x21;

struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
  void operator()(zip_file_t* member) const { zip_fclose(member); }
  void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Archive = std::unique_ptr<zip_t, Discard>;
using Member = std::unique_ptr<zip_file_t, Discard>;
using Source = std::unique_ptr<zip_source_t, Discard>;

// What the library for archives says of a failure is seldom its cause: whether memory or the disk were at an
// end tells the system, whose number is set back before the library is called.
FileFailure FailureOfLibrary(const char* otherwise) {
  constexpr auto kOfDisk = std::to_array(
      {EIO, EACCES, EPERM, ENOSPC, EDQUOT, EROFS, EMFILE, ENFILE, EINTR, ESTALE, ETIMEDOUT, ENXIO, ENOENT});
  const int error = errno;
  if (error == ENOMEM) return {{}, kReasonOutOfMemory};
  if (std::find(kOfDisk.begin(), kOfDisk.end(), error) != kOfDisk.end()) return FailureOfSystem({}, error);
  return {{}, otherwise};
}
FileFailure Damaged() {
  return FailureOfLibrary(kReasonPackedDamaged);
}
FileFailure TooLarge() {
  return {{}, kReasonPackedTooLarge};
}

// The archive takes the source over, unless it can't be opened.
Archive OpenArchive(Source source, int flags) {
  zip_error_t ignored;
  zip_error_init(&ignored);
  Archive archive(zip_open_from_source(source.get(), flags, &ignored));
  zip_error_fini(&ignored);
  if (archive) static_cast<void>(source.release());
  return archive;
}

// What an archive says about the size of a member need not be true.
Result<std::string> ReadMember(zip_file_t& member) {
  std::string bytes;
  std::array<char, 64UL * 1024> part{};
  while (true) {
    const zip_int64_t got = zip_fread(&member, part.data(), part.size());
    if (got < 0) return Damaged();
    if (got == 0) return bytes;
    bytes.append(part.data(), static_cast<std::size_t>(got));
    if (bytes.size() > kLargestFile) return TooLarge();
  }
}

Result<std::string> FirstMember(Source source) {
  if (!source) return Damaged();
  const Archive archive = OpenArchive(std::move(source), ZIP_RDONLY);
  if (!archive || zip_get_num_entries(archive.get(), 0) < 1) return Damaged();
  zip_stat_t about;
  if (zip_stat_index(archive.get(), 0, 0, &about) != 0) return Damaged();
  if ((about.valid & ZIP_STAT_SIZE) != 0 && about.size > kLargestFile) return TooLarge();
  const Member member(zip_fopen_index(archive.get(), 0, 0));
  if (!member) return Damaged();
  return ReadMember(*member);
}

bool AddMember(zip_t& archive, std::string_view plain, const std::string& name) {
  Source source(zip_source_buffer(&archive, plain.data(), plain.size(), 0));
  if (!source) return false;
  const zip_int64_t index = zip_file_add(&archive, name.c_str(), source.get(), ZIP_FL_ENC_GUESS);
  if (index < 0) return false;
  static_cast<void>(source.release());
  return zip_file_set_dostime(&archive, static_cast<zip_uint64_t>(index), 0, kNoDate, 0) == 0 &&
         zip_set_archive_comment(&archive, kPackedComment.data(),
                                 static_cast<zip_uint16_t>(kPackedComment.size())) == 0;
}

std::optional<std::string> AllOf(zip_source_t& source) {
  zip_stat_t about;
  if (zip_source_stat(&source, &about) != 0 || zip_source_open(&source) != 0) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(about.size), '\0');
  const zip_int64_t got = zip_source_read(&source, bytes.data(), bytes.size());
  zip_source_close(&source);
  if (got < 0 || static_cast<std::size_t>(got) != bytes.size()) return std::nullopt;
  return bytes;
}

std::optional<std::string> ArchiveOf(std::string_view plain, const std::string& name) {
  const Source target(zip_source_buffer_create(nullptr, 0, 0, nullptr));
  if (!target) return std::nullopt;
  // Kept for us beside what the archive takes over.
  zip_source_keep(target.get());
  Archive archive = OpenArchive(Source(target.get()), ZIP_TRUNCATE);
  if (!archive || !AddMember(*archive, plain, name)) return std::nullopt;
  if (zip_close(archive.get()) != 0) return std::nullopt;
  static_cast<void>(archive.release());
  return AllOf(*target);
}

// The archive as it was before its first bytes were overwritten.
std::string Restored(std::string_view packed) {
  std::string archive(packed);
  archive.replace(0, std::min(archive.size(), kArchiveStart.size()), kArchiveStart);
  return archive;
}

FileFailure At(FileFailure failure, const std::string& path) {
  if (failure.path.empty()) failure.path = path;
  return failure;
}

}  // namespace

int IsPackedBytes(std::string_view bytes) {
  if (bytes.size() < kShortest) return -1;
  return std::any_of(kSignatures.begin(), kSignatures.end(),
                     [&](std::string_view signature) { return bytes.starts_with(signature); })
             ? 1
             : 0;
}

int IsPackedFile(const std::string& path) {
  const Result<std::string> bytes = ReadWholeFile(path);
  return bytes ? IsPackedBytes(*bytes) : -1;
}

bool AsksForPacking(const DocumentSettings& settings) {
  return settings.Number(Setting::FILEFORMAT) != kPlainFormat;
}

Result<std::string> PackedBytes(std::string_view plain, const std::string& memberName) {
  errno = 0;
  std::optional<std::string> archive = ArchiveOf(plain, memberName);
  if (!archive) return FailureOfLibrary(kReasonNotPacked);
  archive->replace(0, kPackedStart.size(), kPackedStart);
  return std::move(*archive);
}

Result<std::string> UnpackedBytes(std::string_view packed) {
  const std::string archive = Restored(packed);
  errno = 0;
  return FirstMember(Source(zip_source_buffer_create(archive.data(), archive.size(), 0, nullptr)));
}

std::optional<FileFailure> PackTemplate(const std::string& plainPath, const std::string& packedPath) {
  const Result<std::string> plain = ReadWholeFile(plainPath);
  if (!plain) return plain.Error();
  const Result<std::string> packed = PackedBytes(*plain, FileNameOf(packedPath));
  if (!packed) return At(packed.Error(), packedPath);
  return WriteWholeFile(packedPath, *packed);
}

Result<WorkFile> UnpackTemplate(std::string& path, const std::string& tempFolder) {
  const Result<std::string> packed = ReadWholeFile(path);
  if (!packed) return packed.Error();
  const Result<WorkFile> copy =
      WorkFile::Write(JoinPath(tempFolder, kUnpackingFolder), FileNameOf(path), Restored(*packed));
  if (!copy) return copy.Error();
  errno = 0;
  const Result<std::string> plain =
      FirstMember(Source(zip_source_file_create(copy->Path().c_str(), 0, 0, nullptr)));
  if (!plain) return At(plain.Error(), path);
  Result<WorkFile> unpacked = WorkFile::Write(tempFolder, std::string(kUnpackedName), *plain);
  if (unpacked) path = unpacked->Path();
  return unpacked;
}

Result<std::string> ReadPlainTemplate(const std::string& path) {
  Result<std::string> bytes = ReadWholeFile(path);
  if (!bytes || IsPackedBytes(*bytes) != 1) return bytes;
  Result<std::string> plain = UnpackedBytes(*bytes);
  if (!plain) return At(plain.Error(), path);
  return plain;
}

Result<std::string> ReadPlainTemplate(const std::string& path, const std::string& tempFolder) {
  Result<std::string> bytes = ReadWholeFile(path);
  if (!bytes || IsPackedBytes(*bytes) != 1) return bytes;
  std::string plainPath = path;
  const Result<WorkFile> unpacked = UnpackTemplate(plainPath, tempFolder);
  if (!unpacked) return unpacked.Error();
  return ReadWholeFile(plainPath);
}

}  // namespace kev
