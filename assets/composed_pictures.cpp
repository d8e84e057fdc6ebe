// Pictures that are pieces of a source, one over the other: the skies, the bands of the planners, the skin.
#include "drawing.h"
#include "svg_source.h"

namespace skyloft::assets {
namespace {

struct SkyPicture {
  const char* name;
  const char* pieces;
};

constexpr SkyPicture kDaySkies[] = {
    {"ssunny", "day sun"},
    {"smostsun", "day sun-beside few"},
    {"sprtcloud", "day sun-beside scattered"},
    {"spartsun", "day sun-above broken"},
    {"smstcloud", "day sun-behind mostly"},
    {"scloudy", "hazy overcast"},
    {"sfoggy", "hazy sun-veiled fog"},
    {"sliterain", "hazy cover-light rain-light"},
    {"smodrain", "hazy cover rain"},
    {"shevyrain", "hazy cover-heavy rain-heavy"},
    {"ststorms", "hazy cover-heavy rain-storm bolt"},
    {"sfrezrain", "hazy cover rain glaze"},
    {"sfrzrnsno", "wet cover rain-beside snow-beside glaze"},
    {"srainsnow", "wet cover rain-beside snow-beside"},
    {"slitesnow", "cold cover-light snow-light"},
    {"smodsnow", "cold cover snow"},
    {"shevysnow", "cold cover-heavy snow-heavy"},
    {"schcshower", "day sun-behind shower rain-shower"},
    {"schcsnowshower", "cold sun-behind shower snow-shower"},
    {"sunrise", "dawn sun-low land up"},
    {"sunset", "dawn sun-low land down"},
    {"sun", "day sun"},
};

constexpr SkyPicture kNightSkies[] = {
    {"snclear", "night moon"},
    {"snmstclr", "night moon-beside few-n"},
    {"snpartcld", "night moon-beside scattered-n"},
    {"snmostcld", "night moon-behind mostly-n"},
    {"sncloudy", "murky overcast-n"},
    {"snfoggy", "murky moon-veiled fog-n"},
    {"snlitrain", "murky cover-light rain-light"},
    {"snmodrain", "murky cover rain"},
    {"snhvyrain", "murky cover-heavy rain-heavy"},
    {"sntstorm", "murky cover-heavy rain-storm bolt"},
    {"snfrzrain", "murky cover rain glaze"},
    {"snfrzrnsn", "murky cover rain-beside snow-beside glaze"},
    {"snrainsno", "murky cover rain-beside snow-beside"},
    {"snlitesno", "murky cover-light snow-light"},
    {"snmodsno", "murky cover snow"},
    {"snhvysnow", "murky cover-heavy snow-heavy"},
    {"snchcshower", "night moon-behind shower rain-shower"},
    {"snchcsnowshower", "night moon-behind shower snow-shower"},
    {"moonrise", "night moon-low land-n up"},
    {"moonset", "night moon-low land-n down"},
    {"moon", "night moon"},
};

constexpr QRgb kDayRain = qRgb(0x0b, 0x42, 0xb4), kNightRain = qRgb(0x7c, 0xbc, 0xff);

struct Piece {
  const char* file;
  const char* source;
  QSize size;
  const char* pieces;
};

constexpr QSize kBand(540, 22);
constexpr Piece kOthers[] = {
    {"backgrounds/hourlya.jpg", "backgrounds", kBand, "hourly-day sun sheen hours"},
    {"backgrounds/hourlyn.jpg", "backgrounds", kBand, "hourly-night moon sheen hours"},
    {"backgrounds/dailya.jpg", "backgrounds", kBand, "daily-day sun sheen periods"},
    {"backgrounds/dailyn.jpg", "backgrounds", kBand, "daily-night moon sheen periods"},
    {"backgrounds/weeklya.jpg", "backgrounds", kBand, "weekly-day sun sheen days"},
    {"backgrounds/weeklyn.jpg", "backgrounds", kBand, "weekly-night moon sheen nights"},
    {"skin/mainform.png", "skin", QSize(800, 590), "window"},
    {"skin/splash.png", "skin", QSize(420, 200), "splash"},
    {"skin/arrow.png", "skin", QSize(10, 6), "arrow"},
};

void WritePieces(const QString& path, const SvgSource& source, QSize size, const char* pieces) {
  WriteScaled(path, size, [&](QPainter& painter) { source.Draw(painter, pieces); });
}

template <std::size_t Count>
void DrawSkies(const QString& share, const SkyPicture (&skies)[Count], QRgb rain) {
  const SvgSource source("sky", rain);
  for (const SkyPicture& sky : skies) {
    WritePieces(share + "/icons/" + sky.name + ".gif", source, {40, 30}, sky.pieces);
  }
}

}  // namespace

void DrawComposedPictures(const QString& share) {
  DrawSkies(share, kDaySkies, kDayRain);
  DrawSkies(share, kNightSkies, kNightRain);
  for (const Piece& other : kOthers) {
    WritePieces(share + "/" + other.file, SvgSource(other.source), other.size, other.pieces);
  }
}

}  // namespace skyloft::assets
