// SPDX-License-Identifier: MIT
// The fixed words of a saved template.
#pragma once

#include <array>
#include <string_view>

#include "document/object_record.h"

namespace kev {

struct CommentRow {
  ObjectKind kind;
  std::string_view oneStep;
  std::string_view otherStep;
};

// The markers behind a vertical step, by which a reader of the file can tell where a line comes from.
inline constexpr auto kStepComments = std::to_array<CommentRow>({
    {ObjectKind::TextBox, "rem=modulo001", "rem=modulo002X"},
    {ObjectKind::Picture, "rem=modulo001", "rem=modulo002B"},
    {ObjectKind::Qr, "rem=modulo101", "rem=modulo102B"},
    {ObjectKind::Circle, "rem=modulo003", "rem=modulo004"},
    {ObjectKind::Chart, "rem=modulo025", "rem=modulo026"},
    {ObjectKind::Barcode, "rem=modulo005", "rem=modulo006"},
    {ObjectKind::Line, "rem=modulo007", "rem=modulo008"},
    {ObjectKind::AnyLine, "rem=modulo009", "rem=modulo010"},
    {ObjectKind::Box, "rem=modulo011", "rem=modulo012"},
    {ObjectKind::Command, "rem=modulo013", "rem=modulo014"},
    {ObjectKind::Label, "rem=modulo015", "rem=modulo016"},
});

}  // namespace kev
