// SPDX-License-Identifier: MIT
// Recent files, thumbnails and the welcome screen in the main window.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <functional>
#include <optional>
#include <utility>

#include "app/recent_files.h"
#include "base/files.h"
#include "platform/forms/fastopen.h"
#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"
#include "support/run_tool.h"

namespace kev {
namespace {

class RecentWindow : public testing::Test {
 protected:
  void Start(std::vector<std::string> arguments = {}) {
    designer = std::make_unique<Designer>(host, measurer, home.Input(std::move(arguments)));
    host.UseNativeDialogs(false);
    ASSERT_TRUE(designer->Load());
    window = std::make_unique<KavEdit01>(*designer, host, fonts, images);
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, window.get(), [this] {
      QWidget* open = QApplication::activeModalWidget();
      if (auto* splash = qobject_cast<kavsplash*>(open)) QTest::mouseClick(splash, Qt::LeftButton);
      if (auto* welcome = qobject_cast<Fastopen*>(open)) {
        ++welcomes;
        if (onWelcome) onWelcome(*welcome);
        welcome->close();
      }
    });
    user.start(1);
    window->show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return settled() && !window->windowTitle().isEmpty(); }));
  }
  QAction& Entry(int number) { return *window->findChild<QAction*>(QStringLiteral("archivo%1").arg(number)); }
  QImage Thumbnail(const std::string& path) {
    return QImage(QString::fromStdString(*ThumbnailPath(designer->Folders(), path)), "BMP");
  }

  TempHome home;
  QtHost host;
  FontCache fonts;
  ImageCache images{{}};
  QtMeasurer measurer{fonts};
  std::unique_ptr<Designer> designer;
  std::unique_ptr<KavEdit01> window;
  int welcomes = 0;
  std::function<void(Fastopen&)> onWelcome;
  std::function<bool()> settled = [] { return true; };
};

TEST_F(RecentWindow, TheFileMenuHasEightEntriesOfWhichTheEmptyOnesAreHidden) {
  const std::string first = home.CopyOf("letter.kev"), second = home.CopyOf("invoice.kev");
  Start({first});
  ASSERT_TRUE(designer->OpenTemplate(second));
  EXPECT_EQ(Entry(1).text(), QStringLiteral("&1 ") + QString::fromStdString(second));
  EXPECT_EQ(Entry(2).text(), QStringLiteral("&2 ") + QString::fromStdString(first));
  EXPECT_TRUE(Entry(2).isVisible());
  for (int number = 3; number <= 8; ++number)
    EXPECT_FALSE(Entry(number).isVisible()) << number;
  const QList<QAction*> entries = window->findChild<QMenu*>(QStringLiteral("menfile"))->actions();
  EXPECT_LT(entries.indexOf(&Entry(8)), entries.size() - 1);
  EXPECT_EQ(entries.constLast()->objectName(), QStringLiteral("exitmen"));
}

TEST_F(RecentWindow, AnEntryOpensItsFile) {
  const std::string first = home.CopyOf("letter.kev"), second = home.CopyOf("invoice.kev");
  Start({first});
  ASSERT_TRUE(designer->OpenTemplate(second));
  Entry(2).trigger();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor"));
  EXPECT_TRUE(Entry(1).text().endsWith(QStringLiteral("letter.kev")));
}

TEST_F(RecentWindow, AThumbnailShowsTheTopOfThePage) {
  const std::string file = home.CopyOf("invoice.kev");
  Start({file});
  const QImage picture = Thumbnail(file);
  const ThumbnailLook look = ThumbnailLookOf(designer->OpenDocument().Settings);
  ASSERT_EQ(picture.size(), QSize(look.PixelWidth, look.PixelHeight));
  int dark = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      dark += picture.pixelColor(x, y).lightness() < 160 ? 1 : 0;
  EXPECT_GT(dark, 100);
}

class FirstPaintOf final : public QObject {
 public:
  FirstPaintOf(QObject& widget, std::function<void()> painted) : painted_(std::move(painted)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && painted_) std::exchange(painted_, nullptr)();
    return false;
  }

 private:
  std::function<void()> painted_;
};

TEST_F(RecentWindow, ThePageIsPaintedInFrontOfItsThumbnail) {
  const std::string first = home.CopyOf("letter.kev"), second = home.CopyOf("invoice.kev");
  Start({first});
  QCoreApplication::processEvents();
  std::optional<bool> wasThere;
  const FirstPaintOf page(*window->findChild<PageCanvas*>()->viewport(),
                          [&] { wasThere = !Thumbnail(second).isNull(); });
  ASSERT_TRUE(designer->OpenTemplate(second));
  EXPECT_EQ(wasThere, false);
  EXPECT_FALSE(Thumbnail(second).isNull());
}

TEST_F(RecentWindow, AThumbnailHasNeitherSelectionNorGridNorZoomNorFilter) {
  const std::string file = home.CopyOf("invoice.kev");
  Start({file});
  ASSERT_TRUE(designer->Save());
  const QImage plain = Thumbnail(file);
  designer->Surface().Run(Command::SelectAll);
  designer->Surface().ToggleDrawGrid();
  designer->SetZoom("50");
  designer->SetFilter(DisplayFilter::Ebeu);
  const bool wasSelected = designer->OpenDocument().Objects.SelectionCount > 0;
  ASSERT_TRUE(designer->Save());
  EXPECT_EQ(Thumbnail(file), plain);
  EXPECT_EQ(designer->OpenDocument().Objects.SelectionCount > 0, wasSelected);
  EXPECT_EQ(designer->ZoomFactor(), 0.5);
}

TEST_F(RecentWindow, AThumbnailOfAVeryLongPageIsAsSmall) {
  std::string lines;
  for (int line = 0; line < 900; ++line)
    lines += "{100;}Line{Spacing=800;\\n}\r\n";
  test::WriteBytes(home.Path("work/long.kev"), "KEXVER=4\r\n[HEADER]\r\n[DATA]\r\n" + lines + "[FOOTER]\r\n");
  Start({home.Path("work/long.kev")});
  EXPECT_EQ(Thumbnail(home.Path("work/long.kev")).height(), 360);
}

TEST_F(RecentWindow, AFreshStartShowsTheWelcomeScreenAndOpensWhatIsChosenThere) {
  home.ShowWelcome(true);
  const std::string file = home.CopyOf("letter.kev");
  test::WriteBytes(home.Path("data/Kev/temp/lastfiles"), file + "\r\n");
  onWelcome = [](Fastopen& welcome) {
    auto* list = welcome.findChild<QWidget*>(QStringLiteral("recentlist"));
    QTest::keyClick(list, Qt::Key_Return);
  };
  settled = [this] { return welcomes > 0; };
  Start();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("letter.kev - Kev Visual Editor"));
}

TEST_F(RecentWindow, AStartOnATemplateShowsNoWelcomeScreen) {
  home.ShowWelcome(true);
  Start({home.CopyOf("letter.kev")});
  EXPECT_EQ(welcomes, 0);
}

TEST_F(RecentWindow, TheMenuOpensTheFactsAboutTheDocument) {
  Start({home.CopyOf("letter.kev")});
  QString opened;
  QTimer::singleShot(0, qApp, [&] {
    opened = QApplication::activeModalWidget()->objectName();
    QApplication::activeModalWidget()->close();
  });
  window->findChild<QAction*>(QStringLiteral("docproperties"))->trigger();
  EXPECT_EQ(opened, QStringLiteral("docpropertiesfrm"));
}

}  // namespace
}  // namespace kev
