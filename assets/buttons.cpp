#include <algorithm>
#include <iterator>

#include "drawing.h"
#include "svg_source.h"

namespace skyloft::assets {
namespace {

struct Button {
  const char* name;
  int width, height;
  const char* glyph;  // elements of the source
  bool has_disabled = true;
};

constexpr Button kButtons[] = {
    {"back", 34, 26, "back"},
    {"next", 34, 26, "next"},
    {"play", 34, 26, "play"},
    {"stop", 34, 26, "stop"},
    {"local", 50, 26, "local"},
    {"national", 50, 26, "national"},
    {"zmarea", 34, 26, "area"},
    {"zoomin", 34, 26, "lens plus"},
    {"zoomout", 34, 26, "lens minus"},
    {"reset", 34, 26, "reset"},
    {"exit", 26, 26, "exit", false},
    {"help", 26, 26, "help", false},
    {"menu", 26, 26, "menu", false},
    {"legend", 50, 26, "legend", false},
    {"minimize", 26, 26, "minimize", false},
};

// They tell of a warning: it waits, it is being shown, there is none.
constexpr Button kSevereButtons[] = {
    {"tornado", 46, 34, "tornado"},
    {"tstorm", 46, 34, "bolt"},
    {"flood", 46, 34, "flood"},
    {"personal", 150, 28, "bell"},
};

// A face and the colour of what stands on it.
class Look {
 public:
  Look(const char* face, QRgb letters, int shift = 0)
      : source_("buttons", letters), face_(face), shift_(shift) {}

  Draw Of(const Button& button) const {
    return [this, &button](QPainter& painter) {
      Stretch(painter, button.width, button.height);
      painter.translate(button.width / 2.0, button.height / 2.0 + shift_);
      source_.Draw(painter, button.glyph);
    };
  }

 private:
  // The face is cut at its edges into nine parts; what lies between the edges is stretched.
  void Stretch(QPainter& painter, int width, int height) const {
    constexpr int kFaceWidth = 34, kFaceHeight = 26, kEdge = 9;
    const double across[] = {0, kEdge, double(width - kEdge), double(width)};
    const double down[] = {0, kEdge, double(height - kEdge), double(height)};
    constexpr double kFaceAcross[] = {0, kEdge, kFaceWidth - kEdge, kFaceWidth};
    constexpr double kFaceDown[] = {0, kEdge, kFaceHeight - kEdge, kFaceHeight};
    for (std::size_t x = 0; x < 3; ++x) {
      for (std::size_t y = 0; y < 3; ++y) {
        const QRectF part(across[x], down[y], across[x + 1] - across[x], down[y + 1] - down[y]);
        painter.save();
        painter.setClipRect(part);
        painter.translate(part.topLeft());
        painter.scale(part.width() / (kFaceAcross[x + 1] - kFaceAcross[x]),
                      part.height() / (kFaceDown[y + 1] - kFaceDown[y]));
        painter.translate(-kFaceAcross[x], -kFaceDown[y]);
        source_.Draw(painter, face_);
        painter.restore();
      }
    }
  }

  const SvgSource source_;
  const char* const face_;
  const int shift_;  // pixels that the letters lie deeper
};

}  // namespace

void DrawButtons(const QString& share) {
  const Look normal("normal", qRgb(0xf2, 0xf7, 0xff)), pressed("pressed", qRgb(0xff, 0xd3, 0x5c), 1),
      disabled("disabled", qRgb(0x64, 0x7b, 0xa8)), waiting("waiting", qRgb(0xff, 0xff, 0xff)),
      waiting_dim("waiting-dim", qRgb(0xff, 0xb8, 0xa4)), showing("showing", qRgb(0x2b, 0x16, 0x00));
  const auto path = [&](const Button& button, const char* look) {
    return share + "/icons/" + button.name + look + ".gif";
  };
  const auto write = [&](const Button& button, const char* letter, const Look& look) {
    WriteScaled(path(button, letter), {button.width, button.height}, look.Of(button));
  };
  for (const Button& button : kButtons) {
    write(button, "", normal);
    write(button, "r", pressed);
    if (button.has_disabled) write(button, "d", disabled);
  }
  for (const Button& button : kSevereButtons) {
    write(button, "", showing);
    write(button, "d", disabled);
    WriteBlinking(path(button, "s"), {button.width, button.height}, waiting.Of(button),
                  waiting_dim.Of(button));
  }
}

}  // namespace skyloft::assets
