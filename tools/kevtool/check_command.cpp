// SPDX-License-Identifier: MIT
#include <iostream>
#include <nlohmann/json.hpp>

#include "app/template_findings.h"
#include "base/files.h"
#include "commands.h"
#include "template/packed.h"

namespace kev::tool {
namespace {

using Json = nlohmann::ordered_json;

// The form in which a template lies on the disk is part of what a rewrite writes.
std::vector<Finding> FormDifference(const std::string& file, const Document& document,
                                    const std::string& written) {
  const bool packed = AsksForPacking(document.Settings);
  const Result<std::string> stored = ReadWholeFile(file);
  const bool isPacked = stored && IsPackedBytes(*stored) == 1;
  const auto differs = [](std::string text) {
    return std::vector<Finding>{{0, 0, FindingKind::RewriteDiffers, std::move(text), 0}};
  };
  if (packed != isPacked) return differs(packed ? "plain -> encoded" : "encoded -> plain");
  if (!packed) return {};
  const Result<std::string> again = PackedBytes(written, FileNameOf(file));
  return again && *again == *stored ? std::vector<Finding>() : differs("encoded otherwise");
}

std::vector<Finding> FindingsOf(const std::string& file, Opened& opened, bool strict) {
  CheckedTemplate checked = CheckRead(*opened.Outcome, opened.Bytes, BuiltInMeasurer());
  if (!strict) return std::move(checked.Findings);
  std::vector<Finding> differences = FirstDifference(opened.Bytes, checked.Written);
  if (differences.empty()) differences = FormDifference(file, opened.Outcome->Read, checked.Written);
  checked.Findings.insert(checked.Findings.end(), differences.begin(), differences.end());
  return std::move(checked.Findings);
}

// As compilers write it, so that editors find the place. What belongs to no line has no numbers.
void Print(const std::string& file, const Finding& finding, const CodePage& page) {
  std::cout << file << ':';
  if (finding.Line != 0) std::cout << finding.Line << ':' << finding.Column << ':';
  std::cout << ' ' << FindingText(finding.Kind) << ": " << page.ToUtf8(finding.Text) << '\n';
}

Json ToJson(const Finding& finding, const Document& document) {
  Json object = nullptr;
  if (finding.Row != 0)
    object = {{"row", finding.Row}, {"kind", KindText(document.Objects[finding.Row].Kind)}};
  return {{"line", finding.Line},
          {"column", finding.Column},
          {"kind", FindingName(finding.Kind)},
          {"text", document.Page->ToUtf8(finding.Text)},
          {"object", object}};
}

void PrintJson(const std::string& file, const Opened& opened, const std::vector<Finding>& findings) {
  Json list = Json::array();
  for (const Finding& finding : findings)
    list.push_back(ToJson(finding, opened.Outcome->Read));
  const Json line = {{"file", file},
                     {"check", opened.Check},
                     {"refused", opened.Outcome ? Json(nullptr) : Json(opened.Refused)},
                     {"findings", list}};
  // The name of a file may be no UTF-8.
  std::cout << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

bool CheckFile(const std::string& file, const CheckChoice& choice, KnownFolders& known) {
  Opened opened = Open(file, known);
  std::vector<Finding> findings;
  if (opened.Outcome) findings = FindingsOf(file, opened, choice.strict);
  if (choice.json) {
    PrintJson(file, opened, findings);
  } else {
    if (!opened.Check.empty()) std::cout << file << ": " << opened.Check << '\n';
    for (const Finding& finding : findings)
      Print(file, finding, *opened.Outcome->Read.Page);
  }
  return opened.Outcome && findings.empty();
}

}  // namespace

int Check(const CheckChoice& choice) {
  bool good = true;
  KnownFolders known;
  for (const std::string& file : choice.files)
    good = CheckFile(file, choice, known) && good;
  return good ? kGood : kRefused;
}

}  // namespace kev::tool
