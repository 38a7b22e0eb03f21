// SPDX-License-Identifier: MIT
// An open file of the system, closed with its owner; and files that one process holds and others leave alone.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "base/result.h"

namespace kev {

class Descriptor {
 public:
  Descriptor() = default;
  // Takes the number over; a negative one is no file.
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { Close(); }

  explicit operator bool() const { return number_ >= 0; }
  int Number() const { return number_; }
  // 0 when all went well. Closing can be the moment when a full disk shows.
  int Close();

 private:
  int number_ = -1;
};

// 0, or the system's error number.
int WriteAll(int descriptor, std::string_view bytes);
FileFailure FailureOfSystem(std::string path, int error);

// 0, or the system's error number. Waits for other holders, but no longer than a second; where the file
// system has no locks, for nobody.
int LockPatiently(const Descriptor& file);
// Holds a folder against HoldFolder of others, so that one at a time changes what lies in it; waits as
// LockPatiently does. Nothing where it can't be held.
Descriptor HoldFolder(const std::string& folder);

// Holds a file against HoldFile and IsHeld of every other holder, for as long as the result lives; a process
// that ends in whatever way holds nothing any more. Nothing where another holds the file or it can't be
// opened. Where the file system has no locks, only the processes of this machine see each other's holds.
Descriptor HoldFile(const std::string& path);
// Whether a file is held, or is not ours to read.
bool IsHeld(const std::string& path);

// A file that is whole on the disk and held before it gets its name, so that nobody ever finds a part of it.
class NewHeldFile {
 public:
  static Result<NewHeldFile> Write(const std::string& folder, std::string_view bytes);
  NewHeldFile(NewHeldFile&& other) noexcept
      : file_(std::move(other.file_)), temporary_(std::exchange(other.temporary_, {})) {}
  NewHeldFile& operator=(NewHeldFile&&) = delete;
  // Without a name it is gone.
  ~NewHeldFile();

  // 0, or the system's error number: EEXIST where the name is in use. The path lies in the same folder.
  int Name(const std::string& path);
  // The hold, once the file has its name.
  Descriptor Take() { return std::move(hold_ ? hold_ : file_); }

 private:
  NewHeldFile(Descriptor file, std::string temporary)
      : file_(std::move(file)), temporary_(std::move(temporary)) {}

  Descriptor file_;
  Descriptor hold_;  // where it is not the file itself
  // The name it has meanwhile, where the file system has no files without one.
  std::string temporary_;
};

}  // namespace kev
