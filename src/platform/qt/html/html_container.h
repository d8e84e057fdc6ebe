// The HTML engine's window to the computer: fonts, text, pictures and painting through Qt. Addresses and
// texts of the engine are UTF-8.
#pragma once

#include <litehtml/litehtml.h>

#include <QCursor>
#include <QPainter>
#include <QSize>
#include <QString>
#include <memory>

#include "platform/qt/html/html_elements.h"
#include "platform/qt/html/html_loader.h"

namespace skyloft {

class HtmlContainer final : public litehtml::document_container {
 public:
  explicit HtmlContainer(std::shared_ptr<HtmlLoader> loader) : loader_(std::move(loader)) {}
  virtual ~HtmlContainer() = default;

  void SetViewSize(const QSize& size) { view_size_ = size; }
  // Paints the document with its top left corner at `origin` of the painter; `view` is what can be seen of
  // it.
  void Paint(litehtml::document& document, QPainter& painter, const QPoint& origin, const QRect& view);
  LayoutBudget& Budget() { return budget_; }
  // The link of the last click, "" for none; asking takes it away.
  QString TakeClickedLink() { return std::exchange(clicked_link_, {}); }
  Qt::CursorShape Cursor() const { return cursor_; }

  litehtml::uint_ptr create_font(const char* face, int size, int weight, litehtml::font_style italic,
                                 unsigned decoration, litehtml::font_metrics* metrics) override;
  void delete_font(litehtml::uint_ptr font) override;
  int text_width(const char* text, litehtml::uint_ptr font) override;
  void draw_text(litehtml::uint_ptr, const char* text, litehtml::uint_ptr font, litehtml::web_color color,
                 const litehtml::position& position) override;
  int pt_to_px(int points) const override { return (points * 96 + 36) / 72; }
  int get_default_font_size() const override { return 16; }
  const char* get_default_font_name() const override { return "Times New Roman"; }
  void draw_list_marker(litehtml::uint_ptr, const litehtml::list_marker& marker) override;
  void load_image(const char* source, const char* base_url, bool redraw_on_ready) override;
  void get_image_size(const char* source, const char* base_url, litehtml::size& size) override;
  void draw_background(litehtml::uint_ptr, const litehtml::background_paint& background) override;
  void draw_borders(litehtml::uint_ptr, const litehtml::borders& borders, const litehtml::position& box,
                    bool root) override;
  void set_caption(const char*) override {}
  void set_base_url(const char*) override {}
  void link(const std::shared_ptr<litehtml::document>&, const litehtml::element::ptr&) override {}
  void on_anchor_click(const char* url, const litehtml::element::ptr&) override;
  void set_cursor(const char* cursor) override;
  void transform_text(litehtml::tstring& text, litehtml::text_transform transform) override;
  void import_css(litehtml::tstring& text, const litehtml::tstring& url,
                  litehtml::tstring& base_url) override;
  void set_clip(const litehtml::position& box, const litehtml::border_radiuses&, bool valid_x,
                bool valid_y) override;
  void del_clip() override;
  void get_client_rect(litehtml::position& client) const override;
  std::shared_ptr<litehtml::element> create_element(
      const char* tag, const litehtml::string_map& attributes,
      const std::shared_ptr<litehtml::document>& document) override;
  void split_text(const char* text, const std::function<void(const char*)>& on_word,
                  const std::function<void(const char*)>& on_space) override;
  void get_media_features(litehtml::media_features& media) const override;
  void get_language(litehtml::tstring& language, litehtml::tstring& culture) const override;

 private:
  const std::shared_ptr<HtmlLoader> loader_;
  LayoutBudget budget_;
  QSize view_size_;
  QPainter* painter_ = nullptr;  // while painting: the engine's clips come without a device
  QRect view_;                   // what can be seen while painting, in the painter's coordinates
  QString clicked_link_;
  Qt::CursorShape cursor_ = Qt::ArrowCursor;
};

}  // namespace skyloft
