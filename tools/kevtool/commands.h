// SPDX-License-Identifier: MIT
// One function for each command of kevtool. Each gives the exit status: 0 good, 1 the file is refused or has
// findings, 2 wrong usage. Results go to standard output, reasons to standard error.
#pragma once

#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "barcode/painters.h"
#include "base/known_folders.h"
#include "template/reader.h"

namespace kev::tool {

inline constexpr int kGood = 0;
inline constexpr int kRefused = 1;
inline constexpr int kWrongUsage = 2;

struct CheckChoice {
  std::vector<std::string> files;
  bool json = false;    // an object on a line for each file
  bool strict = false;  // a rewrite that would change a byte is a finding
};
int Check(const CheckChoice& choice);
int Dump(const std::string& file, bool geometry);
int Rewrite(const std::string& in, const std::string& out, bool comments);
int Eval(const std::string& file, const std::string& expression);
// From the plain form of a template to the packed one, and back. The target appears whole or not at all.
int Pack(const std::string& in, const std::string& out);
int Unpack(const std::string& in, const std::string& out);

int Sample(const std::string& file, bool json);
// The data file is a .kex or .ked as the caller named it; its path stands absolute in the template.
int New(const std::string& dataFile, const std::string& out);

struct BarcodeChoice {
  std::string kind;
  std::optional<std::string> text;
  bool lines = false;  // texts from standard input
};
int Barcode(const BarcodeChoice& choice);

struct RenderChoice {
  std::vector<std::string> files;  // a template and its picture; templates alone where there is a folder
  std::string outFolder;           // for `format` of each template under its own name; empty for none
  std::string format = "png";
  double zoom = 100;  // percent
  double scale = 1;   // device ratio
  std::string filter = "all";
  bool grid = false;
};
int Render(const RenderChoice& choice);

struct DiffChoice {
  std::string first;
  std::string second;
  bool json = false;
  std::string image;  // empty for none
};
// kRefused where the templates differ too.
int Diff(const DiffChoice& choice);

struct Opened {
  std::string Check;                   // the five characters; empty for a file that cannot be read
  std::optional<ReadOutcome> Outcome;  // nothing when the file is refused; the reason is on standard error
  std::string Refused;                 // the same reason
  std::string Bytes;                   // of the plain form
};
// Reads a template as the designer opens one: what it refuses is refused here too.
Opened Open(const std::string& file);
// One of many, whose pictures may lie in folders that are known already.
Opened Open(const std::string& file, KnownFolders& known, std::ostream& errors);
// Names the bar codes that could not be painted to their end, on standard error.
void TellStopped(const std::string& file, const Document& document, const BarcodeState& bars);

}  // namespace kev::tool
