// SPDX-License-Identifier: MIT
// The three buttons of the chart wizard that stay down: bold, italic, underlined.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTest>
#include <memory>
#include <optional>

#include "platform/forms/wizard1.h"
#include "platform/forms/wizard1_fields.h"
#include "platform/images.h"
#include "platform/print_qt.h"
#include "platform/qt_measurer.h"
#include "platform/svg_icon.h"
#include "platform/temp_home.h"
#include "support/scripted_host.h"

namespace kev {
namespace {

constexpr std::string_view kTemplate =
    "KEXVER=4\r\n[HEADER]\r\n{Graph_Height=3000;Graph_Width=4500}\r\n{Buildgraph=600,300;\\n}\r\n"
    "{Spacing=5000;\\n}\r\n[DATA]\r\n[FOOTER]\r\n";

class WizardToggles : public testing::Test {
 protected:
  WizardToggles() {
    EXPECT_TRUE(designer.Load());
    EXPECT_TRUE(designer.OpenFresh(kTemplate));
    const ObjectTable& objects = designer.OpenDocument().Objects;
    int chart = 0;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Kind == ObjectKind::Chart) chart = row;
    run.emplace(designer, chart);
    dialog = std::make_unique<Wizard1>(*run, Wizard1::Services{designer.Texts(), fonts, images});
    dialog->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  }
  ImgToggle& Toggle(const char* name) {
    auto* toggle = dialog->findChild<ImgToggle*>(QString::fromLatin1(name));
    if (toggle == nullptr) throw std::runtime_error(std::string("no toggle ") + name);
    return *toggle;
  }
  static QImage ImageOf(const QIcon& icon) { return icon.pixmap(20, 20).toImage(); }

  TempHome home;
  test::ScriptedHost host;
  FontCache fonts;
  QtMeasurer measurer{fonts};
  ImageCache images{[](std::string_view file) { return std::string(file); }};
  Designer designer{host, measurer, home.Input({})};
  std::optional<ChartWizardRun> run;
  std::unique_ptr<Wizard1> dialog;
};

TEST_F(WizardToggles, ShowEachItsOwnImage) {
  for (const auto& [name, file] : {std::pair{"GrBold01", "boldregular"},
                                   {"GrItalic01", "italicregular"},
                                   {"GrUnderline01", "underlineregular"}}) {
    const QString image =
        QStringLiteral(KEV_TEST_DATA_DIR "/../assets/Pbms/%1.prbm").arg(QLatin1String(file));
    const QImage expected = ImageOf(SvgIcon(image));
    ASSERT_FALSE(expected.isNull()) << file;
    EXPECT_EQ(ImageOf(Toggle(name).icon()), expected) << name;
  }
  EXPECT_NE(ImageOf(Toggle("GrBold01").icon()), ImageOf(Toggle("GrItalic01").icon()));
  EXPECT_NE(ImageOf(Toggle("GrItalic01").icon()), ImageOf(Toggle("GrUnderline01").icon()));
}

TEST_F(WizardToggles, AHoverOverOneToggleClearsThatOfTheOthers) {
  const auto enter = [](ImgToggle& toggle) {
    QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(&toggle, &event);
  };
  auto& bold = Toggle("GrBold01");
  auto& italic = Toggle("GrItalic01");
  auto& underline = Toggle("GrUnderline01");
  for (ImgToggle* toggle : {&bold, &italic, &underline}) {
    enter(*toggle);
    for (ImgToggle* other : {&bold, &italic, &underline})
      EXPECT_EQ(other->IsHovered(), other == toggle);
  }
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&underline, &leave);
  EXPECT_FALSE(underline.IsHovered());
}

}  // namespace
}  // namespace kev
