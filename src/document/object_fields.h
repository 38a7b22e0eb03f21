// SPDX-License-Identifier: MIT
// The fields of a record by their names and in their order, for everything that walks all of them: the JSON
// dump, comparing two documents, checking what came back from a file.
#pragma once

#include <array>
#include <string_view>
#include <variant>

#include "document/object_record.h"

namespace kev {

using FieldMember =
    std::variant<std::int16_t ObjectRecord::*, std::int32_t ObjectRecord::*, std::string ObjectRecord::*,
                 RareText ObjectRecord::*, FixedText<1> ObjectRecord::*, FixedText<7> ObjectRecord::*,
                 FixedText<8> ObjectRecord::*, OrderKey ObjectRecord::*, ObjectKind ObjectRecord::*,
                 RareOptional<double> ObjectRecord::*, RareOptional<std::string> ObjectRecord::*>;

struct FieldRow {
  std::string_view name;
  FieldMember member;
};

// The chart values are not among them: they have names of their own.
inline constexpr auto kObjectFields = std::to_array<FieldRow>({
    {"TextBoxExtraValue", &ObjectRecord::TextBoxExtraValue},
    {"TextBoxFrameValue", &ObjectRecord::TextBoxFrameValue},
    {"ShapeTag", &ObjectRecord::ShapeTag},
    {"ModifiableByEndUser", &ObjectRecord::ModifiableByEndUser},
    {"SectionCursorY", &ObjectRecord::SectionCursorY},
    {"CommandPayload", &ObjectRecord::CommandPayload},
    {"ExecuteArg2", &ObjectRecord::ExecuteArg2},
    {"ExecuteArg3", &ObjectRecord::ExecuteArg3},
    {"LineFlag", &ObjectRecord::LineFlag},
    {"KeepOwner", &ObjectRecord::KeepOwner},
    {"Selected", &ObjectRecord::Selected},
    {"SortKey", &ObjectRecord::SortKey},
    {"Kind", &ObjectRecord::Kind},
    {"Content", &ObjectRecord::Content},
    {"ExecuteCommand", &ObjectRecord::ExecuteCommand},
    {"ColorR", &ObjectRecord::ColorR},
    {"ColorG", &ObjectRecord::ColorG},
    {"ColorB", &ObjectRecord::ColorB},
    {"BackColorR", &ObjectRecord::BackColorR},
    {"BackColorG", &ObjectRecord::BackColorG},
    {"BackColorB", &ObjectRecord::BackColorB},
    {"XValue", &ObjectRecord::XValue},
    {"X2Value", &ObjectRecord::X2Value},
    {"Y", &ObjectRecord::Y},
    {"Align", &ObjectRecord::Align},
    {"Width", &ObjectRecord::Width},
    {"Height", &ObjectRecord::Height},
    {"Bold", &ObjectRecord::Bold},
    {"Italic", &ObjectRecord::Italic},
    {"Strikethrough", &ObjectRecord::Strikethrough},
    {"Underline", &ObjectRecord::Underline},
    {"FontSize", &ObjectRecord::FontSize},
    {"FontName", &ObjectRecord::FontName},
    {"CharSet", &ObjectRecord::CharSet},
    {"PicturePath", &ObjectRecord::PicturePath},
    {"PictureFile", &ObjectRecord::PictureFile},
    {"Link", &ObjectRecord::Link},
    {"AlignToGrid", &ObjectRecord::AlignToGrid},
    {"SectionTitle", &ObjectRecord::SectionTitle},
    {"SectionOwner", &ObjectRecord::SectionOwner},
    {"OwnerName", &ObjectRecord::OwnerName},
    {"SectionName", &ObjectRecord::SectionName},
    {"AbsoluteY", &ObjectRecord::AbsoluteY},
    {"PrintFlag", &ObjectRecord::PrintFlag},
    {"Format", &ObjectRecord::Format},
    {"CaseMode", &ObjectRecord::CaseMode},
    {"ValueType", &ObjectRecord::ValueType},
    {"LineWidth", &ObjectRecord::LineWidth},
    {"BarWidth", &ObjectRecord::BarWidth},
    {"BarcodeKind", &ObjectRecord::BarcodeKind},
    {"BarcodeSample", &ObjectRecord::BarcodeSample},
    {"VerticalBar", &ObjectRecord::VerticalBar},
    {"StartY", &ObjectRecord::StartY},
    {"EndsAt", &ObjectRecord::EndsAt},
    {"HeightGiven", &ObjectRecord::HeightGiven},
    {"EndRow", &ObjectRecord::EndRow},
    {"OnlyIfFits", &ObjectRecord::OnlyIfFits},
    {"Filled", &ObjectRecord::Filled},
    {"MayMoveVertically", &ObjectRecord::MayMoveVertically},
    {"MayMoveHorizontally", &ObjectRecord::MayMoveHorizontally},
    {"MayResize", &ObjectRecord::MayResize},
    {"Handles", &ObjectRecord::Handles},
    {"PictureFixedHeight", &ObjectRecord::PictureFixedHeight},
    {"PictureFixedWidth", &ObjectRecord::PictureFixedWidth},
    {"Stretch", &ObjectRecord::Stretch},
});

}  // namespace kev
