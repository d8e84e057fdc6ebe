#include "x_display.h"

#include <xcb/xtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>

#include <QElapsedTimer>
#include <QProcessEnvironment>
#include <QThread>

namespace skyloft {
namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> Take(T* reply) {
  return {reply, &std::free};
}

}  // namespace

XDisplay::XDisplay(Manager manager) {
  // Without a backing store the server forgets what is covered, so that the program must paint it again.
  server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp", "-bs"});
  if (!server_.waitForReadyRead(10000)) return;
  name_ = ":" + QString::fromLatin1(server_.readLine().trimmed());
  up_ = Connect() && (manager == Manager::None || StartManager());
}

bool XDisplay::Connect() {
  connection_ = xcb_connect(name_.toLatin1().data(), nullptr);
  if (xcb_connection_has_error(connection_) != 0) return false;
  screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  return true;
}

bool XDisplay::StartManager() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DISPLAY", name_);
  environment.insert("XDG_CONFIG_HOME", "/nonexistent");  // no settings of whoever runs the tests
  manager_.setProcessEnvironment(environment);
  manager_.start("openbox", QStringList());
  if (!manager_.waitForStarted(5000)) return false;
  QElapsedTimer clock;
  clock.start();
  while (Property(screen_->root, "_NET_SHOWING_DESKTOP").empty()) {
    if (clock.elapsed() > 10000) return false;
    QThread::msleep(10);
  }
  return true;
}

XDisplay::~XDisplay() {
  if (connection_) xcb_disconnect(connection_);
  for (QProcess* process : {&manager_, &server_}) {
    process->kill();
    process->waitForFinished(5000);
  }
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

std::vector<std::uint32_t> XDisplay::Property(xcb_window_t window, const char* name) const {
  const auto length = static_cast<std::uint16_t>(std::strlen(name));
  const auto atom =
      Take(xcb_intern_atom_reply(connection_, xcb_intern_atom(connection_, 0, length, name), nullptr));
  if (!atom) return {};
  const auto reply = Take(xcb_get_property_reply(
      connection_, xcb_get_property(connection_, 0, window, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, 64),
      nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

QStringList XDisplay::Names(xcb_window_t window, const char* property) const {
  QStringList names;
  for (const std::uint32_t atom : Property(window, property)) {
    const auto name =
        Take(xcb_get_atom_name_reply(connection_, xcb_get_atom_name(connection_, atom), nullptr));
    if (name)
      names << QString::fromLatin1(xcb_get_atom_name_name(name.get()),
                                   xcb_get_atom_name_name_length(name.get()));
  }
  return names;
}

void XDisplay::Fake(std::uint8_t event, std::uint8_t detail, const QPoint& place) const {
  xcb_test_fake_input(connection_, event, detail, XCB_CURRENT_TIME, screen_->root,
                      static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()), 0);
  xcb_flush(connection_);
}

void XDisplay::MoveMouse(const QPoint& place) const { Fake(XCB_MOTION_NOTIFY, 0, place); }

void XDisplay::PressButton(std::uint8_t button) const { Fake(XCB_BUTTON_PRESS, button, {}); }

void XDisplay::ReleaseButton(std::uint8_t button) const { Fake(XCB_BUTTON_RELEASE, button, {}); }

void XDisplay::Click(const QPoint& place) const {
  MoveMouse(place);
  PressButton(XCB_BUTTON_INDEX_1);
  ReleaseButton(XCB_BUTTON_INDEX_1);
}

void XDisplay::TapKey(xcb_keysym_t symbol) const {
  const xcb_setup_t* const setup = xcb_get_setup(connection_);
  const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const auto mapping = Take(xcb_get_keyboard_mapping_reply(
      connection_, xcb_get_keyboard_mapping(connection_, setup->min_keycode, count), nullptr));
  if (!mapping) return;
  const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  for (int key = 0; key < count; ++key) {
    if (symbols[key * mapping->keysyms_per_keycode] != symbol) continue;
    const auto code = static_cast<std::uint8_t>(setup->min_keycode + key);
    Fake(XCB_KEY_PRESS, code, {});
    Fake(XCB_KEY_RELEASE, code, {});
    return;
  }
}

}  // namespace skyloft
