#include "platform/qt/html/html_container.h"

#include <QFontMetrics>

#include "platform/qt/html/html_fonts.h"

namespace skyloft {
namespace {

struct Font : HtmlFont {
  QFontMetrics metrics;
};

Font* FontOf(litehtml::uint_ptr handle) { return reinterpret_cast<Font*>(handle); }
QColor ColorOf(const litehtml::web_color& color) { return {color.red, color.green, color.blue, color.alpha}; }
QRect RectOf(const litehtml::position& box) { return {box.x, box.y, box.width, box.height}; }

// Each line is a trapezium, so that lines of different colours meet in the corners.
// The picture as it is, or scaled down if it has more pixels than are drawn.
QImage TextureOf(const QImage& picture, QSize pixels) {
  const bool is_larger = picture.width() > pixels.width() || picture.height() > pixels.height();
  QImage texture =
      is_larger ? picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : picture;
  texture.setDevicePixelRatio(1);
  return texture;
}

void PaintBorder(QPainter& painter, const litehtml::border& border, const QList<QPoint>& corners) {
  if (border.width <= 0 || border.style <= litehtml::border_style_hidden || border.color.alpha == 0) return;
  painter.setBrush(ColorOf(border.color));
  painter.drawPolygon(QPolygon(corners));
}

// Raised and sunken lines of style sheets: the shaded sides are darker.
litehtml::border Shaded(litehtml::border border, bool top_left) {
  const bool sunken =
      border.style == litehtml::border_style_inset || border.style == litehtml::border_style_groove;
  const bool raised =
      border.style == litehtml::border_style_outset || border.style == litehtml::border_style_ridge;
  if ((sunken && top_left) || (raised && !top_left)) {
    border.color.red = static_cast<litehtml::byte>(border.color.red / 2);
    border.color.green = static_cast<litehtml::byte>(border.color.green / 2);
    border.color.blue = static_cast<litehtml::byte>(border.color.blue / 2);
  }
  return border;
}

}  // namespace

void HtmlContainer::Paint(litehtml::document& document, QPainter& painter, const QPoint& origin,
                          const QRect& view) {
  painter_ = &painter;
  view_ = view;
  painter.save();
  const litehtml::position clip(view.x(), view.y(), view.width(), view.height());
  document.draw(0, origin.x(), origin.y(), &clip);
  painter.restore();
  painter_ = nullptr;
}

litehtml::uint_ptr HtmlContainer::create_font(const char* face, int size, int weight,
                                              litehtml::font_style italic, unsigned decoration,
                                              litehtml::font_metrics* metrics) {
  HtmlFont found = FindHtmlFont(QString::fromUtf8(face), size, weight, italic == litehtml::fontStyleItalic);
  found.font.setUnderline(decoration & litehtml::font_decoration_underline);
  found.font.setStrikeOut(decoration & litehtml::font_decoration_linethrough);
  found.font.setOverline(decoration & litehtml::font_decoration_overline);
  const QFontMetrics measured(found.font);
  metrics->ascent = found.ascent;
  metrics->descent = found.descent;
  metrics->height = found.ascent + found.descent;
  metrics->x_height = measured.xHeight();
  metrics->draw_spaces = decoration != 0;
  return reinterpret_cast<litehtml::uint_ptr>(new Font{std::move(found), measured});
}

void HtmlContainer::delete_font(litehtml::uint_ptr font) { delete FontOf(font); }

int HtmlContainer::text_width(const char* text, litehtml::uint_ptr font) {
  return font ? FontOf(font)->metrics.horizontalAdvance(QString::fromUtf8(text)) : 0;
}

void HtmlContainer::draw_text(litehtml::uint_ptr, const char* text, litehtml::uint_ptr font,
                              litehtml::web_color color, const litehtml::position& position) {
  if (!font || !view_.intersects(RectOf(position))) return;
  const Font& face = *FontOf(font);
  const QString letters = QString::fromUtf8(text);
  const int baseline = position.bottom() - face.descent;
  painter_->setFont(face.font);
  painter_->setPen(ColorOf(color));
  painter_->drawText(position.x, baseline, letters);
  if (face.embolden) painter_->drawText(position.x + face.embolden, baseline, letters);
}

void HtmlContainer::draw_list_marker(litehtml::uint_ptr, const litehtml::list_marker& marker) {
  painter_->setPen(ColorOf(marker.color));
  if (marker.marker_type >= litehtml::list_style_type_armenian && marker.font) {
    const Font* font = FontOf(marker.font);
    const QString number = QString::number(marker.index) + '.';
    painter_->setFont(font->font);
    painter_->drawText(marker.pos.right() - font->metrics.horizontalAdvance(number) - 4,
                       marker.pos.y + font->ascent, number);
    return;
  }
  painter_->setBrush(marker.marker_type == litehtml::list_style_type_circle ? QBrush()
                                                                            : ColorOf(marker.color));
  if (marker.marker_type == litehtml::list_style_type_square) {
    painter_->drawRect(RectOf(marker.pos));
  } else {
    painter_->drawEllipse(RectOf(marker.pos));
  }
}

void HtmlContainer::load_image(const char* source, const char*, bool) {
  loader_->Picture(QString::fromUtf8(source));
}

void HtmlContainer::get_image_size(const char* source, const char*, litehtml::size& size) {
  const QSize natural = loader_->Picture(QString::fromUtf8(source)).deviceIndependentSize().toSize();
  size.width = natural.width();
  size.height = natural.height();
}

void HtmlContainer::draw_background(litehtml::uint_ptr, const litehtml::background_paint& background) {
  // The page's own background fills the view also where the page ends.
  const QRect clip = background.is_root ? view_ : RectOf(background.clip_box).intersected(view_);
  if (clip.isEmpty()) return;
  if (background.color.alpha) painter_->fillRect(clip, ColorOf(background.color));
  if (background.image.empty()) return;
  const QImage picture = loader_->Picture(QString::fromStdString(background.image));
  if (picture.isNull() || background.image_size.width <= 0 || background.image_size.height <= 0) return;
  QRect tiles(background.position_x, background.position_y, background.image_size.width,
              background.image_size.height);
  const auto repeat = background.repeat;
  const QPoint first = tiles.topLeft();
  if (repeat == litehtml::background_repeat_repeat || repeat == litehtml::background_repeat_repeat_x) {
    tiles.setLeft(clip.left());
    tiles.setRight(clip.right());
  }
  if (repeat == litehtml::background_repeat_repeat || repeat == litehtml::background_repeat_repeat_y) {
    tiles.setTop(clip.top());
    tiles.setBottom(clip.bottom());
  }
  const QSize size(background.image_size.width, background.image_size.height);
  const QImage texture = TextureOf(picture, size * painter_->deviceTransform().m11());
  QBrush brush(texture);
  brush.setTransform(
      QTransform::fromTranslate(first.x(), first.y())
          .scale(double(size.width()) / texture.width(), double(size.height()) / texture.height()));
  painter_->setRenderHint(QPainter::SmoothPixmapTransform);
  painter_->fillRect(tiles.intersected(clip), brush);
}

void HtmlContainer::draw_borders(litehtml::uint_ptr, const litehtml::borders& borders,
                                 const litehtml::position& box, bool) {
  const QRect outer = RectOf(box);
  if (!outer.intersects(view_)) return;
  const int x1 = outer.x(), y1 = outer.y(), x2 = x1 + outer.width(), y2 = y1 + outer.height();
  const int left = x1 + borders.left.width, top = y1 + borders.top.width;
  const int right = x2 - borders.right.width, bottom = y2 - borders.bottom.width;
  painter_->setPen(Qt::NoPen);
  PaintBorder(*painter_, Shaded(borders.top, true), {{x1, y1}, {x2, y1}, {right, top}, {left, top}});
  PaintBorder(*painter_, Shaded(borders.left, true), {{x1, y1}, {left, top}, {left, bottom}, {x1, y2}});
  PaintBorder(*painter_, Shaded(borders.bottom, false),
              {{x1, y2}, {left, bottom}, {right, bottom}, {x2, y2}});
  PaintBorder(*painter_, Shaded(borders.right, false), {{x2, y1}, {x2, y2}, {right, bottom}, {right, top}});
}

void HtmlContainer::on_anchor_click(const char* url, const litehtml::element::ptr&) {
  clicked_link_ = QString::fromUtf8(url).trimmed();
}

void HtmlContainer::set_cursor(const char* cursor) {
  cursor_ = std::string_view(cursor) == "pointer" ? Qt::PointingHandCursor : Qt::ArrowCursor;
}

void HtmlContainer::transform_text(litehtml::tstring& text, litehtml::text_transform transform) {
  QString letters = QString::fromStdString(text);
  if (transform == litehtml::text_transform_uppercase) letters = letters.toUpper();
  if (transform == litehtml::text_transform_lowercase) letters = letters.toLower();
  if (transform == litehtml::text_transform_capitalize && !letters.isEmpty())
    letters[0] = letters[0].toUpper();
  text = letters.toStdString();
}

void HtmlContainer::import_css(litehtml::tstring& text, const litehtml::tstring& url, litehtml::tstring&) {
  text = loader_->StyleSheet(QString::fromStdString(url)).toStdString();
}

void HtmlContainer::set_clip(const litehtml::position& box, const litehtml::border_radiuses&, bool valid_x,
                             bool valid_y) {
  if (!painter_) return;
  QRect clip = RectOf(box);
  if (!valid_x) clip = QRect(view_.left(), clip.top(), view_.width(), clip.height());
  if (!valid_y) clip = QRect(clip.left(), view_.top(), clip.width(), view_.height());
  painter_->save();
  painter_->setClipRect(clip, Qt::IntersectClip);
}

void HtmlContainer::del_clip() {
  if (painter_) painter_->restore();
}

void HtmlContainer::get_client_rect(litehtml::position& client) const {
  client = litehtml::position(0, 0, view_size_.width(), view_size_.height());
}

std::shared_ptr<litehtml::element> HtmlContainer::create_element(
    const char* tag, const litehtml::string_map&, const std::shared_ptr<litehtml::document>& document) {
  return CreateHtmlElement(tag, document, budget_);
}

void HtmlContainer::split_text(const char* text, const std::function<void(const char*)>& on_word,
                               const std::function<void(const char*)>& on_space) {
  const auto bounded = [this](const std::function<void(const char*)>& take) {
    return [this, &take](const char* piece) {
      if (budget_.SpendPiece()) take(piece);
    };
  };
  document_container::split_text(text, bounded(on_word), bounded(on_space));
}

void HtmlContainer::get_media_features(litehtml::media_features& media) const {
  media.type = litehtml::media_type_screen;
  media.width = media.device_width = view_size_.width();
  media.height = media.device_height = view_size_.height();
  media.color = 8;
  media.color_index = 0;
  media.monochrome = 0;
  media.resolution = 96;
}

void HtmlContainer::get_language(litehtml::tstring& language, litehtml::tstring& culture) const {
  language = "en";
  culture = "en-US";
}

}  // namespace skyloft
