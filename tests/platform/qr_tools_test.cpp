// SPDX-License-Identifier: MIT
// The whole program with the tools for QR codes, and with tools that hang, crash, write rubbish or are
// missing.
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <fstream>

#include "base/files.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"

namespace kev {
namespace {

constexpr const char* kTemplate =
    "KEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n{QrCode=600,,900}first{nobar}{Spacing=4000;\\n}"
    "\r\n"
    "{Spacing=400;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n";

class QrToolsTest : public testing::Test {
 protected:
  QrToolsTest() { home_.InstallProgram(); }
  ~QrToolsTest() override {
    if (window_) EndInItsLoop();
  }

  void InstallReal() {
    for (const char* tool : {"qrcode", "png2bmp"})
      std::filesystem::create_symlink(std::string(KEV_PROGRAM_DIR "/") + tool, home_.Path("program/") + tool);
  }
  void InstallStub(const std::string& tool, const std::string& script) {
    const std::string path = home_.Path("program/") + tool;
    std::ofstream(path) << "#!/bin/sh\n" << script << '\n';
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  }
  void InstallStubs(const std::string& script) {
    InstallStub("qrcode", script);
    InstallStub("png2bmp", script);
  }
  void Open() {
    const std::string path = home_.Path("work/a.kev");
    ASSERT_FALSE(WriteWholeFile(path, kTemplate));
    designer_ = std::make_unique<Designer>(host_, measurer_, home_.Input({path}));
    ASSERT_TRUE(designer_->Load());
    window_ = std::make_unique<KavEdit01>(*designer_, host_, fonts_, images_);
    window_->show();
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, window_.get(), [this] {
      auto* splash = window_->findChild<kavsplash*>();
      if (splash != nullptr && splash->isVisible()) QTest::mouseClick(splash, Qt::LeftButton);
    });
    closer.start(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window_->windowTitle().isEmpty(); }));
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (std::as_const(Objects())[row].Kind == ObjectKind::Qr) row_ = row;
    ASSERT_NE(row_, 0);
  }
  // The end of a loop that was never begun would end the loops of later tests.
  void EndInItsLoop() {
    QTimer::singleShot(0, qApp, [this] { window_->EndWithoutAsking(); });
    EXPECT_EQ(QApplication::exec(), 0);
    window_.reset();
  }
  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  std::string Image(const std::string& ending) {
    return home_.Path("temp/Kev/") + std::to_string(row_) + "_" +
           std::to_string(std::as_const(Objects())[row_].Y) + ending;
  }
  // Dark pixels where the code stands.
  bool IsShown() {
    QCoreApplication::processEvents();
    const auto& page = *window_->findChild<PageCanvas*>(QStringLiteral("p1"));
    const CanvasArea area = AreaOf(std::as_const(Objects())[row_], designer_->OpenDocument(), 1);
    const QPointF from = page.ToViewport({area.Left, area.Top}),
                  to = page.ToViewport({area.Right, area.Bottom});
    const QImage image = page.viewport()->grab(QRectF(from, to).toRect()).toImage();
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        dark += qGray(image.pixel(x, y)) < 40 ? 1 : 0;
    return dark > image.width() * image.height() / 10;
  }
  void Click() {
    const CanvasArea area = AreaOf(std::as_const(Objects())[row_], designer_->OpenDocument(), 1);
    const PointerInput at{PointerSource::Page, 0, PointerButton::Left, 0, area.Left + 100, area.Top + 100};
    designer_->Surface().PointerPress(at);
    designer_->Surface().PointerRelease(at);
  }
  void TypeText(const std::string& text) {
    const auto& rows = designer_->Sheets().Shown().Rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
      if (rows[i].Caption == "Text") return designer_->Sheets().Edited(static_cast<int>(i) + 1, text);
    FAIL();
  }
  void ExpectAliveAndWhole() {
    EXPECT_EQ(std::as_const(Objects())[row_].Content, "first");
    EXPECT_FALSE(designer_->Modified());
    Click();
    EXPECT_EQ(Objects().CurrentObject, row_);
    EXPECT_TRUE(designer_->Save());
  }

  TempHome home_;
  QtHost host_;
  FontCache fonts_;
  ImageCache images_{{}};
  QtMeasurer measurer_{fonts_};
  std::unique_ptr<Designer> designer_;
  std::unique_ptr<KavEdit01> window_;
  int row_ = 0;
};

TEST_F(QrToolsTest, ShowTheCodeShortlyAfterThePage) {
  InstallReal();
  Open();
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsShown(); }));
  EXPECT_TRUE(FileExists(Image(".bmp")));
  const std::string png = Image(".png"), bitmap = Image(".bmp");
  EndInItsLoop();
  EXPECT_FALSE(FileExists(png));
  EXPECT_FALSE(FileExists(bitmap));
}

TEST_F(QrToolsTest, HaveMadeTheCodeWhenAnEditReturns) {
  InstallReal();
  Open();
  Click();
  TypeText("second");
  const auto stamp = StampOf(Image(".bmp"));
  EXPECT_TRUE(stamp);
  EXPECT_TRUE(IsShown());
  QTest::qWait(200);
  EXPECT_EQ(StampOf(Image(".bmp")), stamp) << "made once";
}

TEST_F(QrToolsTest, ThatAreMissingOrCrashOrFailLeaveTheCodeOut) {
  for (const char* script : {"", "exit 1", "kill -SEGV $$", "head -c 5000000 /dev/zero; exit 0"}) {
    if (*script != '\0') InstallStubs(script);
    Open();
    QTest::qWait(150);
    EXPECT_FALSE(IsShown()) << script;
    EXPECT_FALSE(FileExists(Image(".bmp"))) << script;
    ExpectAliveAndWhole();
    EndInItsLoop();
  }
}

TEST_F(QrToolsTest, ThatWriteRubbishLeaveTheCodeOut) {
  InstallStub("qrcode", "echo rubbish > \"${1#-o}\"");
  InstallStub("png2bmp", "echo rubbish > \"$2\"");
  Open();
  EXPECT_TRUE(QTest::qWaitFor([this] { return FileExists(Image(".bmp")); }));
  EXPECT_FALSE(IsShown());
  ExpectAliveAndWhole();
}

TEST_F(QrToolsTest, ThatFailAreNotStartedAgainAndAgain) {
  InstallStubs("echo x >> \"$(dirname \"$0\")/calls\"; exit 1");
  Open();
  QTest::qWait(400);
  for (int repaint = 0; repaint < 5; ++repaint) {
    designer_->DeriveGeometryAndRedraw();
    QTest::qWait(20);
  }
  const auto calls = ReadWholeFile(home_.Path("program/calls"));
  ASSERT_TRUE(calls);
  EXPECT_EQ(*calls, "x\nx\n");
}

TEST_F(QrToolsTest, ThatHangAreNotWaitedForByThePageNorByTheEnd) {
  InstallStubs("exec sleep 60");
  QElapsedTimer timer;
  timer.start();
  Open();
  EXPECT_FALSE(IsShown());
  ExpectAliveAndWhole();
  EndInItsLoop();
  EXPECT_LT(timer.elapsed(), 20000);
}

TEST_F(QrToolsTest, ThatHangLeaveTheWindowAliveDuringAWait) {
  InstallStubs("exec sleep 60");
  Open();
  Click();
  int ticks = 0;
  bool saved = false;
  QTimer ticker;
  QObject::connect(&ticker, &QTimer::timeout, &ticker, [&] { ++ticks; });
  ticker.start(20);
  QTimer::singleShot(300, qApp, [&] {
    EXPECT_TRUE(host_.Waiting());
    saved = designer_->Save();
  });
  QTimer::singleShot(500, qApp, [&] { window_->EndWithoutAsking(); });
  QTimer::singleShot(0, qApp, [this] { TypeText("second"); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(saved);
  EXPECT_GE(ticks, 5);
  EXPECT_NE(ReadWholeFile(home_.Path("work/a.kev"))->find("}second{"), std::string::npos);
  window_.reset();
}

TEST_F(QrToolsTest, DelayACloseToTheEndOfTheWait) {
  InstallStubs("exec sleep 0.6");
  Open();
  QTest::qWait(1500);
  Click();
  bool visibleDuring = false;
  QTimer::singleShot(300, qApp, [&] {
    ASSERT_TRUE(host_.Waiting());
    EXPECT_FALSE(window_->close());
    visibleDuring = window_->isVisible();
  });
  // No question comes up, since the document is saved in the meantime.
  QTimer::singleShot(350, qApp, [&] { EXPECT_TRUE(designer_->Save()); });
  TypeText("second");
  EXPECT_TRUE(visibleDuring);
  EXPECT_TRUE(window_->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window_->isVisible(); }));
  window_.reset();
}

TEST_F(QrToolsTest, ThatHangHoldACloseUpForAMomentOnly) {
  InstallStubs("exec sleep 60");
  Open();
  Click();
  QTimer::singleShot(300, qApp, [&] {
    ASSERT_TRUE(host_.Waiting());
    EXPECT_TRUE(designer_->Save());
    EXPECT_FALSE(window_->close());
  });
  QElapsedTimer timer;
  timer.start();
  TypeText("second");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window_->isVisible(); }));
  EXPECT_GT(timer.elapsed(), 2000);
  EXPECT_LT(timer.elapsed(), 20000);
  window_.reset();
}

}  // namespace
}  // namespace kev
