// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <new>

#include "base/descriptor.h"
#include "base/process.h"
#include "base/reasons.h"
#include "commands.h"
#include "data/sample_check.h"

namespace {

using namespace kev::tool;

// Every command stores here what is to be done; the command line is complete before anything runs.
struct Invocation {
  std::function<int()> run;
};

void AddCheck(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("check", "Check templates: structure, and what a save would lose");
  auto choice = std::make_shared<CheckChoice>();
  command->add_option("FILE", choice->files, "Templates")->required();
  command->add_flag("--json", choice->json, "A JSON object on a line of its own for each template");
  command->add_flag("--strict", choice->strict, "Fail too where a rewrite would change a byte");
  command->callback([&invocation, choice] { invocation.run = [choice] { return Check(*choice); }; });
}

void AddDump(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("dump", "Print a template as JSON");
  auto file = std::make_shared<std::string>();
  auto geometry = std::make_shared<bool>(false);
  command->add_option("FILE", *file, "Template")->required();
  command->add_flag("--geometry", *geometry, "After the geometry was derived, not after the read alone");
  command->callback(
      [&invocation, file, geometry] { invocation.run = [=] { return Dump(*file, *geometry); }; });
}

void AddRewrite(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("rewrite", "Read a template as on opening and write it as on saving");
  auto in = std::make_shared<std::string>();
  auto out = std::make_shared<std::string>();
  auto comments = std::make_shared<bool>(false);
  command->add_option("IN", *in, "Template to read")->required();
  command->add_option("OUT", *out, "Template to write")->required();
  command->add_flag("--comments", *comments, "Write the comment behind each vertical step");
  command->callback(
      [&invocation, in, out, comments] { invocation.run = [=] { return Rewrite(*in, *out, *comments); }; });
}

void AddEval(CLI::App& app, Invocation& invocation) {
  auto* command =
      app.add_subcommand("eval", "Print the value of a position in twips; nothing where it has none");
  auto file = std::make_shared<std::string>();
  auto expression = std::make_shared<std::string>();
  command->add_option("FILE", *file, "Template whose columns count")->required();
  command->add_option("EXPRESSION", *expression, "A number, a column, or a column and a step")->required();
  command->callback(
      [&invocation, file, expression] { invocation.run = [=] { return Eval(*file, *expression); }; });
}

void AddPacking(CLI::App& app, Invocation& invocation, const char* name, const char* what,
                int (*work)(const std::string&, const std::string&)) {
  auto* command = app.add_subcommand(name, what);
  auto in = std::make_shared<std::string>();
  auto out = std::make_shared<std::string>();
  command->add_option("IN", *in, "Template to read")->required();
  command->add_option("OUT", *out, "Template to write")->required();
  command->callback(
      [&invocation, in, out, work] { invocation.run = [in, out, work] { return work(*in, *out); }; });
}

void AddSample(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("sample", "Check a file of sample data and print what it holds");
  auto file = std::make_shared<std::string>();
  auto json = std::make_shared<bool>(false);
  command->add_option("FILE", *file, "Records (.kex) or variables (.ked)")->required();
  command->add_flag("--json", *json, "As JSON");
  command->callback([&invocation, file, json] { invocation.run = [=] { return Sample(*file, *json); }; });
}

// A file under the other's option is refused, as a misspelt name would be.
bool EndsWith(const std::string& file, kev::SampleKind kind) {
  return kev::SampleKindOf(file) == kind;
}

void AddNew(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("new", "Make a first template of a file of sample data");
  auto file = std::make_shared<std::string>();
  auto out = std::make_shared<std::string>();
  auto* data = command->add_option_group("data")->require_option(1);
  const auto option = [&](const char* name, const char* help, kev::SampleKind kind, const char* refusal) {
    data->add_option(name, *file, help)->check([kind, refusal](const std::string& text) {
      return EndsWith(text, kind) ? std::string() : std::string(refusal);
    });
  };
  option("--kex", "Records: one subsection for each type", kev::SampleKind::Kex, "the name must end in .kex");
  option("--ked", "Variables: one label for each", kev::SampleKind::Ked, "the name must end in .ked");
  command->add_option("OUT", *out, "Template to write")->required();
  command->callback([&invocation, file, out] { invocation.run = [=] { return New(*file, *out); }; });
}

void AddBarcode(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("barcode", "Print the modules of a bar code, or its elements");
  auto choice = std::make_shared<BarcodeChoice>();
  command->add_option("KIND", choice->kind, "Number of the kind (13), or keyword of the encoder (EAN13)")
      ->required();
  command->add_option("TEXT", choice->text, "What is encoded; behind -- where it begins with -");
  command->add_flag("--lines", choice->lines, "Encode each line of standard input instead of TEXT");
  command->callback([&invocation, choice] { invocation.run = [choice] { return Barcode(*choice); }; });
}

#ifdef KEV_WITH_QT
// The ending tells the form of a picture, here as in render.
std::string PngName(const std::string& name) {
  return name.size() > 4 && name.ends_with(".png") ? std::string() : "the name must end in .png";
}
#endif

void AddDiff(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("diff", "Compare two templates: objects, settings and columns");
  auto choice = std::make_shared<DiffChoice>();
  command->add_option("FIRST", choice->first, "Template")->required();
  command->add_option("SECOND", choice->second, "Template to compare it with")->required();
  command->add_flag("--json", choice->json, "As JSON");
#ifdef KEV_WITH_QT
  command
      ->add_option("--image", choice->image, "Paint both pages with the differences framed, to a .png file")
      ->check(PngName);
#endif
  command->callback([&invocation, choice] { invocation.run = [choice] { return Diff(*choice); }; });
}

#ifdef KEV_WITH_QT
void AddRender(CLI::App& app, Invocation& invocation) {
  auto* command = app.add_subcommand("render", "Paint the page as the designer does, to PNG, PDF or SVG");
  auto choice = std::make_shared<RenderChoice>();
  command->add_option("FILE", choice->files, "Template and its picture (.png, .pdf or .svg), or templates")
      ->required();
  command->add_option("--out-dir", choice->outFolder, "Folder for a picture of each template");
  command->add_option("--format", choice->format, "Pictures in that folder")
      ->check(CLI::IsMember({"png", "pdf", "svg"}));
  command->add_option("--zoom", choice->zoom, "Zoom in percent")->check(CLI::Range(10.0, 800.0));
  command->add_option("--scale", choice->scale, "Device pixels for each logical pixel")
      ->check(CLI::Range(0.1, 16.0));
  command->add_option("--filter", choice->filter, "Which objects")
      ->check(CLI::IsMember({"all", "ebeu", "print"}));
  command->add_flag("--grid", choice->grid, "Draw the grid");
  command->callback([&invocation, choice] {
    if (choice->outFolder.empty() && choice->files.size() != 2)
      throw CLI::ValidationError("FILE", "needs a template and its picture, or templates with --out-dir");
    invocation.run = [choice] { return Render(*choice); };
  });
}
#endif

// A result of which a part is missing is none.
int WithOutputDone(int status) {
  const int error = kev::FlushStandardOutput();
  if (error == 0) return status;
  std::cerr << "kevtool: standard output: " << kev::FailureOfSystem({}, error).reason << '\n';
  return std::max(status, kRefused);
}

int Run(int argc, char** argv) {
  CLI::App app{"Kev templates on the command line", "kevtool"};
  app.set_version_flag("--version", "kevtool " KEV_VERSION);
  app.require_subcommand(1);
  // A position such as -120 is an argument, not an option.
  app.allow_windows_style_options(false);
  Invocation invocation;
  AddCheck(app, invocation);
  AddDump(app, invocation);
  AddRewrite(app, invocation);
  AddEval(app, invocation);
  AddPacking(app, invocation, "pack", "Write a template in its packed form", Pack);
  AddPacking(app, invocation, "unpack", "Write the plain form of a packed template", Unpack);
  AddSample(app, invocation);
  AddNew(app, invocation);
  AddBarcode(app, invocation);
  AddDiff(app, invocation);
#ifdef KEV_WITH_QT
  AddRender(app, invocation);
#endif
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return WithOutputDone(app.exit(error) == 0 ? kGood : kWrongUsage);
  }
  return WithOutputDone(invocation.run());
}

}  // namespace

int main(int argc, char** argv) {
  kev::PrepareProcess();
  try {
    return Run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::cerr << "kevtool: " << kev::kReasonOutOfMemory << '\n';
  } catch (const std::exception& error) {
    std::cerr << "kevtool: " << error.what() << '\n';
  }
  return kRefused;
}
