// SPDX-License-Identifier: MIT
#include "data/sample_path.h"

namespace kev {

std::string_view FilePath(std::string_view path) {
  std::size_t last = path.rfind('\\');
  if (last == std::string_view::npos) last = path.rfind('/');
  return last == std::string_view::npos ? std::string_view() : path.substr(0, last + 1);
}

std::string_view FileBaseName(std::string_view path) {
  return path.substr(FilePath(path).size());
}

}  // namespace kev
