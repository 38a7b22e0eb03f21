// SPDX-License-Identifier: MIT
// A value, or the reason why there is none.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace kev {

// Why a file could not be had or written. The reason is the system's own sentence.
struct FileFailure {
  std::string path;
  std::string reason;
};

template <typename Value, typename Failure = FileFailure>
class Result {
 public:
  Result(Value value) : value_(std::move(value)) {}
  Result(Failure failure) : failure_(std::move(failure)) {}

  explicit operator bool() const { return value_.has_value(); }
  Value& operator*() { return *value_; }
  const Value& operator*() const { return *value_; }
  Value* operator->() { return &*value_; }
  const Value* operator->() const { return &*value_; }
  const Failure& Error() const { return failure_; }

 private:
  std::optional<Value> value_;
  Failure failure_{};
};

}  // namespace kev
