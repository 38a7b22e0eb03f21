// SPDX-License-Identifier: MIT
// Every key that a command block may hold, except those of charts.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "document/object_record.h"

namespace kev {

enum class Action : std::uint8_t {
  Nothing,
  NotRead,  // written by the designer for the viewer alone
  Def,
  Stretch,
  LineWidth,
  ValueType,
  Print,
  ModifiableByEndUser,
  AlignToGrid,
  Vertical,
  QrCode,
  Symbology,
  NoBar,
  SubsectionHeight,
  Top,
  StartAt,
  Colour,
  BarHeight,
  BarWidth,
  Format,
  Link,
  Spacing,
  Case,
  NewLine,
  StepBack,
  FontName,
  CharSet,
  Size,
  Italic,
  Underline,
  Bold,
  Align,
  Trim,
  TextBoxProps,
  PageBreak,
  TextBox,
  Box,
  Picture,
  Circle,
  Line,
  AnyLine,
  BuildGraph
};

struct DirectiveRow {
  std::string_view key;  // in capitals
  Action action;
  int number = 0;  // what the action stores, for actions that several keys share
};

inline constexpr auto kDirectives = std::to_array<DirectiveRow>({
    {"DEF", Action::Def},
    {"STRETCH", Action::Stretch},
    {"W", Action::LineWidth},
    {"NUM", Action::ValueType, 'N'},
    {"TEXT", Action::ValueType, 'T'},
    {"PRINT", Action::Print, kTrue},
    {"NOPRINT", Action::Print, kFalse},
    {"MBEU", Action::ModifiableByEndUser, 1},
    {"NMBEU", Action::ModifiableByEndUser, 0},
    {"ATG", Action::AlignToGrid, 1},
    {"NATG", Action::AlignToGrid, 0},
    {"VERT", Action::Vertical},
    {"VERTBAR", Action::Vertical},
    {"QR", Action::QrCode},
    {"QRCODE", Action::QrCode},
    {"BAR", Action::Symbology, 1},
    {"B39", Action::Symbology, 1},
    {"B32", Action::Symbology, 32},
    {"B128B", Action::Symbology, 1282},
    {"BEAN128", Action::Symbology, 12821},
    {"B128C", Action::Symbology, 1283},
    {"EAN13", Action::Symbology, 13},
    {"BEAN13", Action::Symbology, 13},
    {"EAN8", Action::Symbology, 8},
    {"BEAN8", Action::Symbology, 8},
    {"B2OF5BAR", Action::Symbology, 250},
    {"B2OF5INT", Action::Symbology, 251},
    {"B2OF5IND", Action::Symbology, 252},
    {"NOBAR", Action::NoBar},
    {"SUBSECTIONHEIGHT", Action::SubsectionHeight},
    {"TOP", Action::Top},
    {"TOPOFPAGE", Action::Top},
    {"XY", Action::StartAt},
    {"C", Action::Colour},
    {"BARHEIGHT", Action::BarHeight},
    {"BARWIDTH", Action::BarWidth},
    {"FORMAT", Action::Format},
    {"LINK", Action::Link},
    {"SPACING", Action::Spacing},
    {"FIRSTUP", Action::Case, 'F'},
    {"UPPER", Action::Case, 'U'},
    {"LOWER", Action::Case, 'L'},
    {"\\N", Action::NewLine},
    {"\\P", Action::StepBack},
    {"F", Action::FontName},
    {"CS", Action::CharSet},
    {"CHARSET", Action::CharSet},
    {"S", Action::Size},
    {"I", Action::Italic},
    {"U", Action::Underline},
    {"B", Action::Bold},
    {"A", Action::Align},
    {"TRIM", Action::Trim},
    {"TBPROPS", Action::TextBoxProps},
    {"TB", Action::TextBoxProps},
    {"\\NP", Action::PageBreak},
    {"@@PAGEBREAK", Action::PageBreak},
    {"TEXTBOX", Action::TextBox},
    {"BOX", Action::Box, 0},
    {"BOXF", Action::Box, 1},
    {"PIC", Action::Picture},
    {"CIRC", Action::Circle},
    {"LINE", Action::Line},
    {"ANYLINE", Action::AnyLine},
    {"BUILDGRAPH", Action::BuildGraph},
    {"REM", Action::Nothing},
    {"EXECUTE", Action::NotRead},
    {"POSTSHOW", Action::NotRead},
    {"PAGE", Action::NotRead},
    {"ST", Action::NotRead},
});

}  // namespace kev
