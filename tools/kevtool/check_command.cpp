// SPDX-License-Identifier: MIT
#include <algorithm>
#include <future>
#include <iostream>
#include <nlohmann/json.hpp>
#include <queue>
#include <span>
#include <sstream>
#include <thread>

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
void Print(std::ostream& out, const std::string& file, const Finding& finding, const CodePage& page) {
  out << file << ':';
  if (finding.Line != 0) out << finding.Line << ':' << finding.Column << ':';
  out << ' ' << FindingText(finding.Kind) << ": " << page.ToUtf8(finding.Text) << '\n';
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

void PrintJson(std::ostream& out, const std::string& file, const Opened& opened,
               const std::vector<Finding>& findings) {
  Json list = Json::array();
  for (const Finding& finding : findings)
    list.push_back(ToJson(finding, opened.Outcome->Read));
  const Json line = {{"file", file},
                     {"check", opened.Check},
                     {"refused", opened.Outcome ? Json(nullptr) : Json(opened.Refused)},
                     {"findings", list}};
  // The name of a file may be no UTF-8.
  out << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

// What there is to say about a file.
struct Told {
  std::string results;
  std::string reasons;
  bool good = true;
};

Told CheckFile(const std::string& file, const CheckChoice& choice, KnownFolders& known) {
  std::ostringstream out;
  std::ostringstream errors;
  Opened opened = Open(file, known, errors);
  std::vector<Finding> findings;
  if (opened.Outcome) findings = FindingsOf(file, opened, choice.strict);
  if (choice.json) {
    PrintJson(out, file, opened, findings);
  } else {
    if (!opened.Check.empty()) out << file << ": " << opened.Check << '\n';
    for (const Finding& finding : findings)
      Print(out, file, finding, *opened.Outcome->Read.Page);
  }
  return {out.str(), errors.str(), opened.Outcome && findings.empty()};
}

std::vector<Told> CheckFiles(std::span<const std::string> files, const CheckChoice& choice,
                             KnownFolders& known) {
  std::vector<Told> told;
  for (const std::string& file : files)
    told.push_back(CheckFile(file, choice, known));
  return told;
}

}  // namespace

int Check(const CheckChoice& choice) {
  // A folder of templates is checked on all processors, some files at a time, and told in its order.
  constexpr std::size_t kFilesOfATask = 8;
  const std::span<const std::string> files = choice.files;
  const auto policy =
      files.size() > kFilesOfATask ? std::launch::async | std::launch::deferred : std::launch::deferred;
  const std::size_t mostTasks = std::thread::hardware_concurrency() + 1;
  KnownFolders known;
  std::queue<std::future<std::vector<Told>>> tasks;
  bool good = true;
  const auto tellFirst = [&] {
    for (const Told& told : tasks.front().get()) {
      std::cerr << told.reasons;
      std::cout << told.results;
      good = told.good && good;
    }
    tasks.pop();
  };
  for (std::size_t at = 0; at < files.size(); at += kFilesOfATask) {
    const auto part = files.subspan(at, std::min(kFilesOfATask, files.size() - at));
    tasks.push(std::async(policy, CheckFiles, part, std::cref(choice), std::ref(known)));
    if (tasks.size() >= mostTasks) tellFirst();
  }
  while (!tasks.empty())
    tellFirst();
  return good ? kGood : kRefused;
}

}  // namespace kev::tool
