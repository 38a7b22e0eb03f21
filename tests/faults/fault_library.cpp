// SPDX-License-Identifier: MIT
// Stands in front of the system's calls and makes the one fail that the control names. It is linked into the
// campaign in front of the C library, and preloaded into the real program.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "faults/fault_points.h"

using namespace kev::faults;

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* old, std::size_t size);
}

namespace {

Control own{};
Control* control = &own;

enum class Verdict { Go, Fail, Half };

bool IsFirstThread() {
  return ::syscall(SYS_gettid) == ::getpid();
}

bool IsInside(const char* path) {
  const std::size_t length = ::strnlen(control->Folder, sizeof control->Folder);
  return length == 0 || (path != nullptr && ::strncmp(path, control->Folder, length) == 0);
}

bool IsInside(int file) {
  if (control->Folder[0] == '\0') return true;
  char link[64];
  char path[4096];
  ::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
  const ssize_t length = ::readlink(link, path, sizeof path - 1);
  if (length <= 0) return false;
  path[length] = '\0';
  return IsInside(path);
}

Verdict Count(Kind kind) {
  ++control->Calls;
  const bool hit =
      control->Calls == control->At || (control->How == Manner::Onward && control->Calls > control->At);
  if (!hit) return Verdict::Go;
  if (control->Failed++ == 0) control->Last = kind;
  if (control->How == Manner::Kill) ::syscall(SYS_kill, ::getpid(), SIGKILL);
  if (control->How == Manner::Short) return kind == kWrite || kind == kRead ? Verdict::Half : Verdict::Go;
  errno = control->Error;
  return Verdict::Fail;
}

bool Counts(Kind kind) {
  return control->Armed != 0 && (control->Kinds & kind) != 0 && IsFirstThread();
}

template <typename File>
Verdict Judge(Kind kind, File file) {
  if (!Counts(kind)) return Verdict::Go;
  const int before = errno;
  if (!IsInside(file)) {
    errno = before;
    return Verdict::Go;
  }
  const Verdict verdict = Count(kind);
  if (verdict == Verdict::Go) errno = before;
  return verdict;
}

template <typename File>
bool Fails(Kind kind, File file) {
  return Judge(kind, file) == Verdict::Fail;
}

bool MemoryFails(std::size_t size) {
  return Counts(kMemory) && size >= control->Least && Count(kMemory) == Verdict::Fail;
}

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

mode_t ModeOf(int flags, va_list rest) {
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(rest, unsigned)) : 0;
}

__attribute__((constructor)) void TakeControl() {
  const char* name = ::getenv("KEV_FAULTS");
  if (name == nullptr) return;
  const int file = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, name, O_RDWR | O_CLOEXEC, 0));
  if (file < 0) return;
  void* shared = ::mmap(nullptr, sizeof(Control), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  if (shared != MAP_FAILED) control = static_cast<Control*>(shared);
  // Programs that this one starts are left alone.
  ::unsetenv("KEV_FAULTS");
  ::unsetenv("LD_PRELOAD");
}

}  // namespace

// The C library's own declarations carry attributes that say more than these definitions need.
#pragma GCC diagnostic ignored "-Wmissing-attributes"
#pragma GCC visibility push(default)

extern "C" {

Control* kev_faults() {
  return control;
}

void kev_faults_use(Control* other) {
  control = other;
}

#define KEV_OPEN(name)                                           \
  int name(const char* path, int flags, ...) {                   \
    va_list rest;                                                \
    va_start(rest, flags);                                       \
    const mode_t mode = ModeOf(flags, rest);                     \
    va_end(rest);                                                \
    if (Fails(kOpen, path)) return -1;                           \
    static auto* real = Real<int(const char*, int, ...)>(#name); \
    return real(path, flags, mode);                              \
  }
KEV_OPEN(open)
KEV_OPEN(open64)

#define KEV_OPENAT(name)                                              \
  int name(int folder, const char* path, int flags, ...) {            \
    va_list rest;                                                     \
    va_start(rest, flags);                                            \
    const mode_t mode = ModeOf(flags, rest);                          \
    va_end(rest);                                                     \
    if (Fails(kOpen, path)) return -1;                                \
    static auto* real = Real<int(int, const char*, int, ...)>(#name); \
    return real(folder, path, flags, mode);                           \
  }
KEV_OPENAT(openat)
KEV_OPENAT(openat64)

#define KEV_FOPEN(name)                                               \
  FILE* name(const char* path, const char* how) {                     \
    if (Fails(kOpen, path)) return nullptr;                           \
    static auto* real = Real<FILE*(const char*, const char*)>(#name); \
    return real(path, how);                                           \
  }
KEV_FOPEN(fopen)
KEV_FOPEN(fopen64)

ssize_t write(int file, const void* bytes, std::size_t count) {
  const Verdict verdict = Judge(kWrite, file);
  if (verdict == Verdict::Fail) return -1;
  return ::syscall(SYS_write, file, bytes, verdict == Verdict::Half && count > 1 ? count / 2 : count);
}

ssize_t writev(int file, const iovec* parts, int count) {
  if (Fails(kWrite, file)) return -1;
  return ::syscall(SYS_writev, file, parts, count);
}

#define KEV_PWRITE(name)                                                   \
  ssize_t name(int file, const void* bytes, std::size_t count, off_t at) { \
    if (Fails(kWrite, file)) return -1;                                    \
    return ::syscall(SYS_pwrite64, file, bytes, count, at);                \
  }
KEV_PWRITE(pwrite)
KEV_PWRITE(pwrite64)

ssize_t read(int file, void* bytes, std::size_t count) {
  const Verdict verdict = Judge(kRead, file);
  if (verdict == Verdict::Fail) return -1;
  return ::syscall(SYS_read, file, bytes, verdict == Verdict::Half && count > 1 ? count / 2 : count);
}

int fsync(int file) {
  return Fails(kSync, file) ? -1 : static_cast<int>(::syscall(SYS_fsync, file));
}
int fdatasync(int file) {
  return Fails(kSync, file) ? -1 : static_cast<int>(::syscall(SYS_fdatasync, file));
}

// The file is closed all the same, as the system does it.
int close(int file) {
  const bool fails = Fails(kClose, file);
  const int error = errno;
  const int closed = static_cast<int>(::syscall(SYS_close, file));
  if (fails) errno = error;
  return fails ? -1 : closed;
}

int rename(const char* from, const char* to) noexcept {
  return Fails(kName, to) ? -1 : static_cast<int>(::syscall(SYS_rename, from, to));
}
int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
  return Fails(kName, to) ? -1
                          : static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, 0));
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
  return Fails(kName, to) ? -1
                          : static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}
int link(const char* from, const char* to) noexcept {
  return Fails(kName, to) ? -1 : static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  return Fails(kName, to) ? -1
                          : static_cast<int>(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int unlink(const char* path) noexcept {
  return Fails(kRemove, path) ? -1 : static_cast<int>(::syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}
int unlinkat(int folder, const char* path, int flags) noexcept {
  return Fails(kRemove, path) ? -1 : static_cast<int>(::syscall(SYS_unlinkat, folder, path, flags));
}
int remove(const char* path) noexcept {
  if (Fails(kRemove, path)) return -1;
  static auto* real = Real<int(const char*)>("remove");
  return real(path);
}

int mkdir(const char* path, mode_t mode) noexcept {
  return Fails(kFolder, path) ? -1 : static_cast<int>(::syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

int ftruncate(int file, off_t length) noexcept {
  return Fails(kTruncate, file) ? -1 : static_cast<int>(::syscall(SYS_ftruncate, file, length));
}
int ftruncate64(int file, off64_t length) noexcept {
  return Fails(kTruncate, file) ? -1 : static_cast<int>(::syscall(SYS_ftruncate, file, length));
}

int fchmod(int file, mode_t mode) noexcept {
  return Fails(kMode, file) ? -1 : static_cast<int>(::syscall(SYS_fchmod, file, mode));
}

int flock(int file, int how) noexcept {
  return Fails(kLock, file) ? -1 : static_cast<int>(::syscall(SYS_flock, file, how));
}

void* malloc(std::size_t size) noexcept {
  return MemoryFails(size) ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  return MemoryFails(count * size) ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* old, std::size_t size) noexcept {
  return MemoryFails(size) ? nullptr : __libc_realloc(old, size);
}

}  // extern "C"

#pragma GCC visibility pop
