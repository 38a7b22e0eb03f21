// SPDX-License-Identifier: MIT
// The tools that make the pictures of QR codes, alone and behind a rendered page; a reader tells what they
// hold.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/code_page.h"
#include "support/run_tool.h"

namespace kev::test {
namespace {

namespace fs = std::filesystem;

class QrTools : public testing::Test {
 protected:
  // What a reader finds in the picture.
  std::string Read(const std::string& picture) const {
    const std::string output = folder_ / ".read";
    const std::string command = "zbarimg --nodbus -q --raw -Sdisable -Sqrcode.enable " +
                                ShellQuoted(folder_ / picture) + " >" + ShellQuoted(output) + " 2>/dev/null";
    if (std::system(command.c_str()) != 0) return "nothing found";
    std::string text = ReadBytes(output);
    if (text.ends_with('\n')) text.pop_back();
    return text;
  }
  ToolResult Encode(const std::string& text, const std::string& name = "a.png") const {
    return RunTool("qrcode", {"-o" + name, text}, folder_);
  }
  bool There(const std::string& name) const { return fs::exists(folder_ / name); }
  // The rest of a message of the tool, its file named first.
  void ExpectRefused(const ToolResult& result, const std::string& errors) const {
    EXPECT_EQ(result.ExitCode, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Errors, errors);
  }

  TemporaryFolder folder_;
};

const std::vector<std::string>& HostileTexts() {
  static const std::vector<std::string> kTexts = {"a",
                                                  "-",
                                                  "--help",
                                                  "-oother.png",
                                                  "two  blanks ",
                                                  "\"quoted\" and 'single'",
                                                  "$(touch no); `touch no` && touch no",
                                                  "a|b>no<c&d*?~#!%PATH%",
                                                  "back\\slash\\\\",
                                                  "line\nline\r\nline",
                                                  "é",
                                                  "ñandú ß € 12,50",
                                                  "São João, ¿qué?",
                                                  std::string(2000, 'x'),
                                                  std::string(2953, '7')};
  return kTexts;
}

TEST_F(QrTools, GiveEachTextBackToAReader) {
  for (const std::string& text : HostileTexts()) {
    const ToolResult result = Encode(text);
    EXPECT_EQ(result.ExitCode, 0) << text;
    EXPECT_EQ(result.Errors, "");
    EXPECT_EQ(Read("a.png"), text);
    EXPECT_EQ(RunTool("png2bmp", {"a.png", "a.bmp"}, folder_).ExitCode, 0);
    EXPECT_EQ(Read("a.bmp"), text);
  }
  EXPECT_FALSE(There("no"));
  EXPECT_FALSE(There("other.png"));
}

TEST_F(QrTools, RefuseTextsThatNoCodeHolds) {
  ExpectRefused(Encode(""), "qrcode: the text is empty\n");
  ExpectRefused(Encode(std::string(2954, 'x')),
                "qrcode: the text has 2954 bytes, which is more than a QR code holds\n");
  const std::string longest = std::string(2950, 'x') + "é";
  EXPECT_EQ(Encode(longest).ExitCode, 0);
  EXPECT_EQ(Read("a.png"), longest);
  ExpectRefused(Encode("x" + longest),
                "qrcode: the text has 2953 bytes, which is more than a QR code holds\n");
  ExpectRefused(Encode(std::string(100000, 'x')),
                "qrcode: the text has 100000 bytes, which is more than a QR code holds\n");
}

TEST_F(QrTools, LeaveNoPictureAndKeepTheOldOneWhereTheyFail) {
  WriteBytes(folder_ / "a.png", "old");
  EXPECT_EQ(Encode("").ExitCode, 1);
  EXPECT_EQ(ReadBytes(folder_ / "a.png"), "old");
  ExpectRefused(Encode("text", "missing/a.png"), "qrcode: missing/a.png: No such file or directory\n");
  fs::create_directory(folder_ / "folder");
  ExpectRefused(Encode("text", "folder"), "qrcode: folder: Is a directory\n");
  ExpectRefused(RunTool("png2bmp", {"a.png", "a.bmp"}, folder_), "png2bmp: a.png: this is no PNG picture\n");
  ExpectRefused(RunTool("png2bmp", {"none.png", "a.bmp"}, folder_),
                "png2bmp: none.png: No such file or directory\n");
  EXPECT_FALSE(There("a.bmp"));
  ASSERT_EQ(Encode("text").ExitCode, 0);
  ExpectRefused(RunTool("png2bmp", {"a.png", "missing/a.bmp"}, folder_),
                "png2bmp: missing/a.bmp: No such file or directory\n");
}

TEST_F(QrTools, RefuseABrokenPicture) {
  ASSERT_EQ(Encode("text").ExitCode, 0);
  const std::string whole = ReadBytes(folder_ / "a.png");
  for (const std::size_t length : {0UL, 8UL, 30UL, whole.size() / 2, whole.size() - 20}) {
    WriteBytes(folder_ / "cut.png", whole.substr(0, length));
    const ToolResult result = RunTool("png2bmp", {"cut.png", "cut.bmp"}, folder_);
    EXPECT_EQ(result.ExitCode, 1) << length;
    EXPECT_TRUE(result.Errors.starts_with("png2bmp: cut.png: ")) << result.Errors;
  }
  std::string wide = whole;
  wide[16] = '\x7F';
  WriteBytes(folder_ / "wide.png", wide);
  EXPECT_EQ(RunTool("png2bmp", {"wide.png", "cut.bmp"}, folder_).ExitCode, 1);
  EXPECT_FALSE(There("cut.bmp"));
}

TEST_F(QrTools, HaveAMarginOfFourModulesAndNoGrey) {
  ASSERT_EQ(Encode("text").ExitCode, 0);
  ASSERT_EQ(RunTool("png2bmp", {"a.png", "a.bmp"}, folder_).ExitCode, 0);
  const std::string bitmap = ReadBytes(folder_ / "a.bmp");
  ASSERT_EQ(bitmap.substr(0, 2), "BM");
  const auto number = [&](std::size_t at) {
    return static_cast<std::size_t>(static_cast<unsigned char>(bitmap[at])) |
           static_cast<std::size_t>(static_cast<unsigned char>(bitmap[at + 1])) << 8U;
  };
  const std::size_t side = number(18);
  EXPECT_EQ(side, (21U + 8U) * 4U);
  EXPECT_EQ(number(22), side);
  ASSERT_EQ(bitmap.size(), 54 + side * side * 3);
  const auto dark = [&](std::size_t x, std::size_t y) {
    const std::string pixel = bitmap.substr(54 + ((side - 1 - y) * side + x) * 3, 3);
    EXPECT_TRUE(pixel == std::string(3, '\0') || pixel == "\xFF\xFF\xFF");
    return pixel == std::string(3, '\0');
  };
  for (std::size_t at = 0; at < side; ++at)
    for (std::size_t margin = 0; margin < 16; ++margin)
      EXPECT_FALSE(dark(at, margin) || dark(margin, at) || dark(at, side - 1 - margin));
  EXPECT_TRUE(dark(16, 16) && dark(side - 17, 16) && dark(16, side - 17)) << "the marks of three corners";
}

TEST_F(QrTools, ExplainThemselves) {
  for (const std::string tool : {"qrcode", "png2bmp"}) {
    const ToolResult help = RunTool(tool, {"--help"}, folder_);
    EXPECT_EQ(help.ExitCode, 0);
    EXPECT_TRUE(help.Output.starts_with("Usage: " + tool + " ")) << help.Output;
    EXPECT_NE(help.Output.find("Exit status: 0 "), std::string::npos);
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{}, {"a"}, {"-o", "text", "more"}, {"a", "b", "c"}}) {
      const ToolResult result = RunTool(tool, wrong, folder_);
      EXPECT_EQ(result.ExitCode, 2);
      EXPECT_EQ(result.Errors, help.Output);
    }
  }
  EXPECT_EQ(RunTool("qrcode", {"-o", "text"}, folder_).ExitCode, 2);
  EXPECT_EQ(RunTool("qrcode", {"picture.png", "text"}, folder_).ExitCode, 2);
}

#ifdef KEV_WITH_QT
class QrOnRenderedPage : public QrTools {
 protected:
  ToolResult Render(const std::string& text, const std::string& out, std::vector<std::string> more = {}) {
    WriteBytes(folder_ / "a.kev",
               "KEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n{QrCode=400,," + size_ + "}" + text +
                   "{nobar}{Spacing=9800;\\n}\r\n{Spacing=400;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n");
    std::vector<std::string> arguments = {"render", "a.kev", out};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunTool("kevtool", arguments, folder_);
  }
  // Folders of pictures that were left behind.
  static int Leftovers() {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(fs::temp_directory_path()))
      count += entry.path().filename().string().starts_with("kevtool-") ? 1 : 0;
    return count;
  }

  std::string size_ = "2000";
};

TEST_F(QrOnRenderedPage, ReadsAsItsText) {
  const std::vector<std::string> texts = {"QRCODE", "-oother.png",
                                          "\"$(touch no)\"; 'x' `touch no` | & < > * ?",
                                          "\xE9\xF1 S\xE3o \x80 12,50", "https://example.org/a?b=c&d=%20"};
  for (const std::string& text : texts) {
    const ToolResult result = Render(text, "a.png", {"--scale", "2"});
    EXPECT_EQ(result.ExitCode, 0);
    EXPECT_EQ(result.Errors, "");
    EXPECT_EQ(Read("a.png"), CodePage::Default().ToUtf8(text));
  }
  EXPECT_FALSE(There("no"));
}

TEST_F(QrOnRenderedPage, ReadsAtEachZoomAndSize) {
  for (const char* zoom : {"50", "75", "100", "120", "200"}) {
    EXPECT_EQ(Render("QRCODE", "a.png", {"--scale", "2", "--zoom", zoom}).ExitCode, 0);
    EXPECT_EQ(Read("a.png"), "QRCODE") << zoom;
  }
  size_ = "900";
  Render("QRCODE", "a.png", {"--scale", "2"});
  EXPECT_EQ(Read("a.png"), "QRCODE");
  size_ = "9000";
  const std::string text(2000, 'x');
  Render(text, "a.png", {"--scale", "2"});
  EXPECT_EQ(Read("a.png"), text);
}

TEST_F(QrOnRenderedPage, StandsInPdfAndSvgToo) {
  for (const char* out : {"a.pdf", "a.svg"}) {
    const ToolResult result = Render("QRCODE", out);
    EXPECT_EQ(result.ExitCode, 0);
    EXPECT_GT(fs::file_size(folder_ / out), 500U);
  }
  EXPECT_NE(ReadBytes(folder_ / "a.svg").find("<image"), std::string::npos);
}

TEST_F(QrOnRenderedPage, LeavesNoFolderBehind) {
  const int before = Leftovers();
  Render("QRCODE", "a.png");
  EXPECT_LE(Leftovers(), before);
}

TEST_F(QrOnRenderedPage, IsLeftOutAndToldWhereItsToolsAreMissing) {
  fs::create_directory(folder_ / "elsewhere");
  fs::copy_file(KEV_PROGRAM_DIR "/kevtool", folder_ / "elsewhere/kevtool");
  Render("QRCODE", "a.png");
  const std::string errors = folder_ / ".errors";
  const std::string command = "cd " + ShellQuoted(folder_ / "") +
                              " && elsewhere/kevtool render a.kev b.png --scale 2 2>" + ShellQuoted(errors);
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(ReadBytes(errors).substr(0, 20), "a.kev: the QR code o");
  EXPECT_EQ(Read("b.png"), "nothing found");
}
#endif

}  // namespace
}  // namespace kev::test
