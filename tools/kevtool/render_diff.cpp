// SPDX-License-Identifier: MIT
#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <array>

#include "base/files.h"
#include "platform/render.h"
#include "render_qr_pictures.h"
#include "surface/page_background.h"
#include "template_pair.h"

namespace kev::tool {
namespace {

enum Mark { kRemoved, kAdded, kChanged };

struct MarkStyle {
  QString word;
  QColor colour;
  Qt::PenStyle line;  // colours alone are not told apart by everyone
};

std::array<MarkStyle, 3> MarkStyles() {
  return {{{QStringLiteral("removed"), QColor(200, 30, 40), Qt::DashLine},
           {QStringLiteral("added"), QColor(20, 130, 60), Qt::SolidLine},
           {QStringLiteral("changed"), QColor(30, 90, 210), Qt::DotLine}}};
}

// Pixels.
constexpr int kHead = 44;
constexpr int kGap = 24;
constexpr int kPenWidth = 2;
constexpr int kClearance = 3;  // between an object and its frame
constexpr double kUnitsPerPixel = 15;
constexpr int kBarHeight = 400;  // twips

QFont CaptionFont() {
  QFont font(QStringLiteral("Arial"));
  font.setPixelSize(16);
  return font;
}

class Side {
 public:
  Side(Document& document, const std::string& file) : document_(document), file_(file) {}

  // A sentence where the page cannot be painted.
  std::optional<std::string> Paint() {
    RenderOptions options;
    options.folders.ProgramFolder = QGuiApplication::applicationDirPath().toStdString();
    options.TemplateFolder = FolderOf(AbsolutePath(file_));
    RenderQrPictures codes(options.folders.ProgramFolder, *document_.Page);
    options.images.TempFolder = codes.Folder();
    options.pictures.Qr = &codes;
    Result<QImage, std::string> image = RenderToImage(document_, options);
    if (!image) return image.Error();
    image_ = std::move(*image);
    return std::nullopt;
  }

  void Frame(int row, Mark mark) {
    const MarkStyle style = MarkStyles()[mark];
    QPainter painter(&image_);
    painter.setPen(QPen(style.colour, kPenWidth, style.line));
    QColor shade = style.colour;
    shade.setAlpha(36);
    painter.setBrush(shade);
    painter.drawRect(AreaOfRow(row));
  }

  const QImage& Image() const { return image_; }
  QString Name() const { return QFileInfo(QString::fromStdString(file_)).fileName(); }

 private:
  QRectF AreaOfRow(int row) const {
    const ObjectRecord& record = document_.Objects[row];
    const double left = LeftMarginOf(document_.Settings) / kUnitsPerPixel;
    if (IsBand(record.Kind))
      return {left, record.AbsoluteY / kUnitsPerPixel, image_.width() - left - kPenWidth,
              kBarHeight / kUnitsPerPixel};
    const CanvasArea area = MarkedAreaOf(record, document_, 1);
    const QRectF pixels(left + area.Left / kUnitsPerPixel, area.Top / kUnitsPerPixel,
                        area.Width() / kUnitsPerPixel, area.Height() / kUnitsPerPixel);
    return pixels.adjusted(-kClearance, -kClearance, kClearance, kClearance);
  }

  Document& document_;
  std::string file_;
  QImage image_;
};

void FrameAll(Side& first, Side& second, const DocumentChanges& changes) {
  for (const ObjectChange& change : changes.Objects) {
    const bool inBoth = change.Before != 0 && change.After != 0;
    if (change.Before != 0) first.Frame(change.Before, inBoth ? kChanged : kRemoved);
    if (change.After != 0) second.Frame(change.After, inBoth ? kChanged : kAdded);
  }
}

void DrawLegend(QPainter& painter, int right) {
  int x = right;
  const std::array<MarkStyle, 3> styles = MarkStyles();
  for (auto style = styles.rbegin(); style != styles.rend(); ++style) {
    const int width = painter.fontMetrics().horizontalAdvance(style->word);
    x -= width + kGap;
    painter.setPen(Qt::black);
    painter.drawText(QRect(x, 0, width + kGap, kHead), Qt::AlignVCenter, style->word);
    x -= 34;
    QColor shade = style->colour;
    shade.setAlpha(36);
    painter.setPen(QPen(style->colour, kPenWidth, style->line));
    painter.setBrush(shade);
    painter.drawRect(x, 14, 26, 16);
  }
}

void DrawSide(QPainter& painter, const Side& side, int left) {
  painter.setPen(Qt::black);
  painter.drawText(QRect(left, 0, side.Image().width(), kHead), Qt::AlignVCenter, side.Name());
  painter.drawImage(left, kHead, side.Image());
}

QImage Together(const Side& first, const Side& second) {
  const int left = first.Image().width() + 2 * kGap;
  const QSize size(left + second.Image().width() + kGap,
                   kHead + std::max(first.Image().height(), second.Image().height()) + kGap);
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor(236, 238, 240));
  QPainter painter(&image);
  painter.setFont(CaptionFont());
  DrawSide(painter, first, kGap);
  DrawSide(painter, second, left);
  DrawLegend(painter, size.width() - kGap);
  return image;
}

void NoMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

std::optional<std::string> RenderDiff(const DiffChoice& choice, TemplatePair& pair,
                                      const DocumentChanges& changes) {
  // Hints of the toolkit about the session are no reasons.
  qInstallMessageHandler(NoMessage);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int count = 1;
  char name[] = "kevtool";
  char* arguments[] = {name, nullptr};
  const QGuiApplication application(count, arguments);
  Side first(pair.First, choice.first);
  Side second(pair.Second, choice.second);
  if (auto reason = first.Paint()) return choice.first + ": " + *reason;
  if (auto reason = second.Paint()) return choice.second + ": " + *reason;
  FrameAll(first, second, changes);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!Together(first, second).save(&buffer, "PNG")) return "the picture could not be encoded";
  const auto failure = WriteWholeFile(
      choice.image, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  return failure ? std::optional(failure->reason) : std::nullopt;
}

}  // namespace kev::tool
