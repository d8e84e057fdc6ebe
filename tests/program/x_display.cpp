#include "program/x_display.h"

#include <gtest/gtest.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <memory>
#include <utility>

#include <QElapsedTimer>
#include <QStandardPaths>
#include <QThread>

#include "program/program.h"

namespace skyloft::program {
namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> Take(T* reply) {
  return {reply, &std::free};
}

}  // namespace

bool XDisplay::Installed() { return !QStandardPaths::findExecutable("Xvfb").isEmpty(); }

XDisplay::XDisplay() {
  // Without a backing store the server forgets what is covered, so that the program must paint it again.
  server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp", "-bs"});
  if (!server_.waitForReadyRead(10000)) return;
  name_ = ":" + QString::fromLatin1(server_.readLine().trimmed());
  connection_ = xcb_connect(name_.toLatin1().data(), nullptr);
  if (!Up()) return;
  screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

XDisplay::~XDisplay() {
  if (connection_) xcb_disconnect(connection_);
  server_.kill();
  server_.waitForFinished(5000);
}

XDisplay::Window XDisplay::LargestWindow() const {
  Window largest;
  const auto tree =
      Take(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr));
  if (!tree) return largest;
  const xcb_window_t* const children = xcb_query_tree_children(tree.get());
  for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
    const auto attributes = Take(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, children[i]), nullptr));
    const auto form =
        Take(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, children[i]), nullptr));
    if (!attributes || !form || attributes->map_state != XCB_MAP_STATE_VIEWABLE) continue;
    const QRect place(form->x, form->y, form->width, form->height);
    if (place.width() * place.height() > largest.place.width() * largest.place.height())
      largest = {children[i], place};
  }
  return largest;
}

bool XDisplay::Mapped(const Window& window) const {
  const auto attributes = Take(xcb_get_window_attributes_reply(
      connection_, xcb_get_window_attributes(connection_, window.id), nullptr));
  return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

QByteArray XDisplay::Pixels(const QRect& place) const {
  const auto image = Take(xcb_get_image_reply(
      connection_,
      xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root,
                    static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()),
                    static_cast<std::uint16_t>(place.width()), static_cast<std::uint16_t>(place.height()),
                    ~0u),
      nullptr));
  if (!image) return {};
  return {reinterpret_cast<const char*>(xcb_get_image_data(image.get())),
          xcb_get_image_data_length(image.get())};
}

xcb_window_t XDisplay::Cover(const QRect& place) const {
  const xcb_window_t cover = xcb_generate_id(connection_);
  const std::uint32_t values[] = {0x123456, 1};
  xcb_create_window(connection_, XCB_COPY_FROM_PARENT, cover, screen_->root,
                    static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()),
                    static_cast<std::uint16_t>(place.width()), static_cast<std::uint16_t>(place.height()), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual,
                    XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
  xcb_map_window(connection_, cover);
  xcb_flush(connection_);
  return cover;
}

void XDisplay::Uncover(xcb_window_t cover) const {
  xcb_destroy_window(connection_, cover);
  xcb_flush(connection_);
}

void XDisplay::Click(const QPoint& place) const {
  const auto fake = [&](std::uint8_t event, std::uint8_t detail) {
    xcb_test_fake_input(connection_, event, detail, XCB_CURRENT_TIME, screen_->root,
                        static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()), 0);
  };
  fake(XCB_MOTION_NOTIFY, 0);
  fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
  fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
  xcb_flush(connection_);
}

// Of four bytes a pixel, all alike.
bool WatchedWindow::IsCovered() const {
  const QByteArray pixels = Pixels();
  return pixels.mid(4) == pixels.chopped(4);
}

QByteArray WatchedWindow::AwaitPainted() const {
  QByteArray painted;
  EXPECT_TRUE(Await(5000, [&] {
    const QByteArray before = std::exchange(painted, Pixels());
    QThread::msleep(200);
    return before == painted && !IsCovered();
  }));
  return painted;
}

qint64 WatchedWindow::TimeToRepaint(const QByteArray& painted) const {
  const xcb_window_t cover = display_.Cover(window_.place);
  EXPECT_TRUE(Await(1000, [&] { return IsCovered(); }));
  QElapsedTimer clock;
  clock.start();
  display_.Uncover(cover);
  EXPECT_TRUE(Await(1000, [&] { return Pixels() == painted; }));
  return clock.elapsed();
}

}  // namespace skyloft::program
