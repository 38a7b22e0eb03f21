// SPDX-License-Identifier: MIT
#include "platform/thumbnail.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include "document/sort_keys.h"
#include "platform/display_list.h"
#include "surface/page_background.h"

namespace kev {
namespace {

// Painted larger and then reduced, thin lines are faint instead of heavy.
constexpr int kDetail = 2;

class PicturesThatAreThere final : public QrPictures, public ChartPictures {
 public:
  explicit PicturesThatAreThere(const Designer& designer) : designer_(designer) {}
  bool IsReady(int, const ObjectRecord&, const std::string& file) override { return IsThere(file); }
  bool IsReady(int, const ObjectRecord&, const std::string& file, double) override { return IsThere(file); }

 private:
  bool IsThere(const std::string& file) const { return designer_.PictureFileOnDisk(file).has_value(); }

  const Designer& designer_;
};

void Paint(DisplayList& list, Designer& designer) {
  Document document = designer.OpenDocument();
  for (int row = 1; row <= document.Objects.LastScanned(); ++row)
    document.Objects[row].Selected = kFalse;
  PicturesThatAreThere pictures(designer);
  PaintContext context{.document = document,
                       .surface = list,
                       .measurer = designer.Measurer(),
                       .images = designer.Images(),
                       .pictures = {&pictures, &pictures}};
  PaintPage(context, false, SetSortKeys(document));
}

QImage ImageOf(const DisplayList& list, const ThumbnailLook& look) {
  const QSize size(look.PixelWidth, look.PixelHeight);
  QImage image(size * kDetail, QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(Qt::white);
  QPainter painter(&image);
  const double scale = image.width() / (look.Width / kUnitsPerPixel);
  painter.scale(scale, scale);
  list.Paint(painter, QRectF(list.Canvas().left(), 0, look.Width, look.Height));
  painter.end();
  return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

std::string ThumbnailOf(Designer& designer, FontCache& fonts, ImageCache& images, const ThumbnailLook& look) {
  DisplayList list(fonts, images);
  Paint(list, designer);
  QBuffer buffer;
  if (!ImageOf(list, look).save(&buffer, "BMP")) return {};
  return buffer.data().toStdString();
}

}  // namespace kev
