#include "feedserver/lettering.h"

#include <algorithm>
#include <array>

namespace skyloft::feed {
namespace {

// A letter on a grid: its strokes are rows of places, two digits each, of which the first counts from the
// left and the second downward. Capitals reach from 0 to 6, small letters from 2 to 6, tails down to 8.
struct Letter {
  char sign;
  int width;
  std::string_view strokes;
};

constexpr auto kLetters = std::to_array<Letter>({
    {' ', 1, ""},
    {'A', 4, "062046 1434"},
    {'B', 4, "0006 003041423303 3344453606"},
    {'C', 4, "4130100105163645"},
    {'D', 4, "00062644422000"},
    {'E', 3, "30000636 0323"},
    {'F', 3, "300006 0323"},
    {'G', 4, "413010010516364543 4323"},
    {'H', 4, "0006 4046 0343"},
    {'I', 0, "0006"},
    {'J', 3, "3035261605"},
    {'K', 4, "0006 4003 1346"},
    {'L', 3, "000636"},
    {'M', 4, "0600244046"},
    {'N', 4, "06004640"},
    {'O', 4, "103041453616050110"},
    {'P', 4, "06003041423303"},
    {'Q', 4, "103041453616050110 2446"},
    {'R', 4, "06003041423303 2346"},
    {'S', 4, "413010010213334445361605"},
    {'T', 4, "0040 2026"},
    {'U', 4, "000516364540"},
    {'V', 4, "002640"},
    {'W', 4, "0016223640"},
    {'X', 4, "0046 4006"},
    {'Y', 4, "002340 2326"},
    {'Z', 4, "00400646"},
    {'a', 3, "12223336 341405162635"},
    {'b', 3, "0006 0312223335261605"},
    {'c', 3, "3322120305162635"},
    {'d', 3, "3036 3322120305162635"},
    {'e', 3, "04343322120305162635"},
    {'f', 2, "201116 0222"},
    {'g', 3, "32372818 3322120305162635"},
    {'h', 3, "0006 0312223336"},
    {'i', 0, "0206 00"},
    {'j', 1, "121708 10"},
    {'k', 3, "0006 3204 1336"},
    {'l', 0, "0006"},
    {'m', 4, "0206 03122326 23324346"},
    {'n', 3, "0206 0312223336"},
    {'o', 3, "122233352616050312"},
    {'p', 3, "0208 0312223335261605"},
    {'q', 3, "3238 3322120305162635"},
    {'r', 2, "0206 031222"},
    {'s', 3, "33221203142435261605"},
    {'t', 2, "101526 0222"},
    {'u', 3, "0205162635 3236"},
    {'v', 2, "021622"},
    {'w', 4, "0216233642"},
    {'x', 3, "0236 3206"},
    {'y', 2, "0216 221608"},
    {'z', 3, "02320636"},
    {'0', 3, "102031352616050110"},
    {'1', 3, "112026"},
    {'2', 3, "01102031320636"},
    {'3', 3, "0110203132233435261605 1323"},
    {'4', 3, "26200434"},
    {'5', 3, "30000312223335261605"},
    {'6', 3, "312010010516263534231304"},
    {'7', 3, "003016"},
    {'8', 3, "102031322313020110 1304051626353423"},
    {'9', 3, "051626353120100102132332"},
    {'.', 0, "06"},
    {',', 1, "1607"},
    {':', 0, "03 06"},
    {'-', 2, "0424"},
    {'+', 4, "0444 2226"},
    {'/', 3, "3006"},
    {'%', 4, "4006 0010110100 3545463635"},
    {'(', 1, "10010516"},
    {')', 1, "00111506"},
    {'\'', 0, "0001"},
    {'\xB0', 1, "0010110100"},  // a degree
});
constexpr double kHeight = 6, kGap = 1.7;  // of the grid: a capital; between two letters

const Letter& LetterOf(char sign) {
  const auto* found = std::ranges::find(kLetters, sign, &Letter::sign);
  return found == kLetters.end() ? kLetters.front() : *found;
}

}  // namespace

std::vector<std::vector<Pixel>> LettersOf(std::string_view text, Pixel corner, double height) {
  const double unit = height / kHeight;
  std::vector<std::vector<Pixel>> strokes;
  for (const char sign : text) {
    const Letter& letter = LetterOf(sign);
    std::string_view rest = letter.strokes;
    while (!rest.empty()) {
      const std::string_view stroke = rest.substr(0, rest.find(' '));
      std::vector<Pixel>& path = strokes.emplace_back();
      for (std::size_t i = 0; i + 1 < stroke.size(); i += 2)
        path.push_back({corner.x + (stroke[i] - '0') * unit, corner.y + (stroke[i + 1] - '0') * unit});
      rest.remove_prefix(std::min(stroke.size() + 1, rest.size()));
    }
    corner.x += (letter.width + kGap) * unit;
  }
  return strokes;
}

double TextWidth(std::string_view text, double height) {
  double width = text.empty() ? 0 : -kGap;
  for (const char sign : text) width += LetterOf(sign).width + kGap;
  return width * height / kHeight;
}

void WriteHard(Canvas& canvas, std::string_view text, Pixel corner, double height, Colour colour) {
  for (const auto& stroke : LettersOf(text, corner, height)) canvas.DrawHard(stroke, colour);
}

void WriteSoft(Canvas& canvas, std::string_view text, Pixel corner, double height, double weight,
               Colour colour) {
  for (const auto& stroke : LettersOf(text, corner, height)) canvas.DrawSoft(stroke, weight, colour);
}

void WriteWithRim(Canvas& canvas, std::string_view text, Pixel corner, double height, double weight,
                  Colour colour, Colour rim) {
  WriteSoft(canvas, text, corner, height, weight + 2.4, rim);
  WriteSoft(canvas, text, corner, height, weight, colour);
}

}  // namespace skyloft::feed
