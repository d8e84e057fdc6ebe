#include "platform/qt/indexed_pictures.h"

#include <gif_lib.h>
#include <gtest/gtest.h>

#include <functional>

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include "base/guard.h"
#include "feed/radar_colors.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/qt/drive.h"

namespace skyloft {
namespace {

const std::string kTemp = "C:\\program files\\skyloft\\temp\\";

// The colours of the GIFs, and what the radar's replacements make of them. The new black of the second step
// is not the black that the first step cleared.
constexpr GifColorType kColors[] = {{0, 0, 0}, {0, 139, 0}, {205, 0, 0}, {0, 138, 0}};
const QRgb kRecoloured[] = {qRgb(90, 90, 80), qRgb(0, 0, 0), qRgb(255, 75, 75), qRgb(0, 138, 0)};
constexpr int kSide = 12;
int PlaceAt(int x, int y) { return (x + 3 * y) % 4; }

struct GifShape {
  int screen = kSide, pictures = 1, transparent = NO_TRANSPARENT_COLOR;
  bool interlaced = false, own_colors = false;
};

int AppendGifBytes(GifFileType* gif, const GifByteType* bytes, int count) {
  static_cast<std::string*>(gif->UserData)
      ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
  return count;
}

// One picture of kSide by kSide; PlaceAt tells its pixels, of a second one they are all 3.
void PutPicture(GifFileType* gif, const GifShape& shape, const ColorMapObject* map, bool is_first) {
  GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 0, shape.transparent};
  GifByteType extension[4];
  EGifGCBToExtension(&control, extension);
  ASSERT_EQ(EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, extension), GIF_OK);
  ASSERT_EQ(EGifPutImageDesc(gif, 0, 0, kSide, kSide, shape.interlaced, shape.own_colors ? map : nullptr),
            GIF_OK);
  const std::vector<std::pair<int, int>> passes =  // the first line and the step
      shape.interlaced ? std::vector<std::pair<int, int>>{{0, 8}, {4, 8}, {2, 4}, {1, 2}}
                       : std::vector<std::pair<int, int>>{{0, 1}};
  for (const auto& [first, step] : passes) {
    for (int y = first; y < kSide; y += step) {
      for (int x = 0; x < kSide; ++x) {
        ASSERT_EQ(EGifPutPixel(gif, static_cast<GifByteType>(is_first ? PlaceAt(x, y) : 3)), GIF_OK);
      }
    }
  }
}

std::string GifOf(const GifShape& shape) {
  std::string bytes;
  GifFileType* const gif = EGifOpen(&bytes, AppendGifBytes, nullptr);
  ColorMapObject* const map = GifMakeMapObject(4, kColors);
  EGifSetGifVersion(gif, true);
  EXPECT_EQ(EGifPutScreenDesc(gif, shape.screen, shape.screen, 8, 0, shape.own_colors ? nullptr : map),
            GIF_OK);
  for (int i = 0; i < shape.pictures; ++i) PutPicture(gif, shape, map, i == 0);
  EXPECT_EQ(EGifCloseFile(gif, nullptr), GIF_OK);
  GifFreeMapObject(map);
  return bytes;
}

class IndexedPictures : public ::testing::Test {
 protected:
  IndexedPictures() { SetUpDrive(folder.path(), folder.path() + "/share"); }

  // The picture that a GIF file becomes; raises as the conversion does.
  QImage Converted(const std::string& gif) const {
    WriteFile(kTemp + "radar.gif", gif);
    ConvertPicture(kTemp + "radar.gif", kTemp + "radar.png", RadarColors());
    return QImage(folder.path() + "/program files/skyloft/temp/radar.png", "PNG");
  }
  static void ExpectRecoloured(const QImage& image) {
    ASSERT_FALSE(image.isNull());
    for (int y = 0; y < kSide; ++y) {
      for (int x = 0; x < kSide; ++x) {
        ASSERT_EQ(image.pixel(x, y), kRecoloured[PlaceAt(x, y)]) << x << " " << y;
      }
    }
  }

  int argc = 0;
  QGuiApplication application{argc, nullptr};
  QTemporaryDir folder;
};

TEST_F(IndexedPictures, AGifOfAnyBuildIsRecolouredPixelByPixel) {
  const struct {
    const char* name;
    GifShape shape;
    bool is_plain;
  } cases[] = {
      {"plain", {}, true},
      {"of several pictures, of which the first counts", {.pictures = 2}, true},
      {"interlaced", {.interlaced = true}, true},
      {"with colours of its own", {.own_colors = true}, true},
      {"smaller than its screen", {.screen = 20}, false},
      {"with a transparent colour that no pixel has", {.transparent = 200}, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string gif = GifOf(c.shape);
    EXPECT_EQ(!ReadPlainGif(gif).isNull(), c.is_plain);
    const QImage png = Converted(gif);
    EXPECT_EQ(png.size(), QSize(c.shape.screen, c.shape.screen));
    ExpectRecoloured(png);
  }
}

TEST_F(IndexedPictures, ATransparentColourStaysTransparent) {
  const QImage png = Converted(GifOf({.transparent = 0}));
  EXPECT_EQ(qAlpha(png.pixel(0, 0)), 0);
  EXPECT_EQ(png.pixel(1, 0), kRecoloured[1]);
}

TEST_F(IndexedPictures, AGifCutAnywhereEndsInAPictureOrLeavesNone) {
  const std::string whole = GifOf({});
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string cut = whole.substr(0, size);
    try {
      EXPECT_EQ(Converted(cut).size(), QSize(kSide, kSide)) << size;
    } catch (const RuntimeError&) {
      EXPECT_FALSE(FileExists(kTemp + "radar.png")) << size;
    }
    if (FileExists(kTemp + "radar.png")) DeleteFile(kTemp + "radar.png");
  }
}

TEST_F(IndexedPictures, AnyByteOfAGifMayBeWrong) {
  const std::string whole = GifOf({.interlaced = true});
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char wrong : {'\0', '\x7f', '\xff'}) {
      std::string gif = whole;
      gif[at] = wrong;
      const QImage image = ReadPlainGif(gif);
      if (image.isNull()) continue;
      EXPECT_TRUE(IsPlainIndexed(image)) << at;
      EXPECT_LE(image.width() * image.height(), 32 * 1024 * 1024) << at;
    }
  }
}

TEST_F(IndexedPictures, APixelBeyondTheColoursIsNotPlain) {
  std::string gif = GifOf({});
  // The code size after the picture's description lets pixels be 0 to 3; of the colours only two stay.
  ASSERT_EQ(gif[10] & 7, 1) << "four colours";
  gif[10] = static_cast<char>(gif[10] & ~7);
  gif.erase(13 + 6, 6);
  EXPECT_TRUE(ReadPlainGif(gif).isNull());
}

TEST_F(IndexedPictures, UpToSixteenColoursTakeFourBitsAPixel) {
  for (const auto& [colors, depth] : {std::pair{2, 4}, {16, 4}, {17, 8}, {256, 8}}) {
    QImage image(300, 2, QImage::Format_Indexed8);
    QList<QRgb> table;
    for (int i = 0; i < colors; ++i) table << qRgb(i, 2 * i % 256, 7);
    image.setColorTable(table);
    for (int y = 0; y < 2; ++y) {
      for (int x = 0; x < 300; ++x) image.setPixel(x, y, static_cast<uint>((x + y) % colors));
    }
    const std::string png = WriteIndexedPng(image);
    EXPECT_EQ(png[24], depth) << "the depth in the file's head";
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(png)).convertToFormat(QImage::Format_RGB32),
              image.convertToFormat(QImage::Format_RGB32))
        << colors;
  }
}

}  // namespace
}  // namespace skyloft
