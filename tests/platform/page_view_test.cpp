// SPDX-License-Identifier: MIT
#include "platform/page_view.h"

#include <gtest/gtest.h>

#include <QWidget>
#include <fstream>

#include "base/numbers.h"
#include "platform/qt_host.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"

namespace kev {
namespace {

TEST(PageView, TheFirstTemplateIsMeasuredInThePageOfTheSettings) {
  constexpr std::string_view kText = "\xC4\xC6\xDE\xD9";  // four Cyrillic letters
  const TempHome home;
  std::ofstream(home.Path("data/Kev/KEV.INI")) << "CODEPAGE=windows-1251\r\n";
  std::ofstream(home.Path("work/a.kev"), std::ios::binary)
      << "KEXVER=4\r\n[HEADER]\r\n{100;}" << kText << "{}\r\n[DATA]\r\n[FOOTER]\r\n";
  QtHost host;
  FontCache fonts;
  ImageCache images({});
  const QtMeasurer measurer(fonts);
  Designer designer(host, measurer, home.Input({home.Path("work/a.kev")}));
  ASSERT_TRUE(designer.Load());
  QWidget window;
  const PageView page(designer, fonts, images, &window);
  designer.SplashLoad();
  designer.AfterSplash();

  const ObjectTable& objects = designer.OpenDocument().Objects;
  int row = 1;
  while (row < objects.LastScanned() && objects[row].Kind != ObjectKind::Label)
    ++row;
  ASSERT_EQ(objects[row].Content, kText);
  FontCache known(*CodePage::Find("windows-1251"));
  FontCache other;
  EXPECT_EQ(objects[row].Width, ToInt32(QtMeasurer(known).Measure({}, kText).Width));
  EXPECT_NE(objects[row].Width, ToInt32(QtMeasurer(other).Measure({}, kText).Width));
}

}  // namespace
}  // namespace kev
