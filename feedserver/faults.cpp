#include "feedserver/faults.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

struct KindName {
  std::string_view name;
  FaultKind kind;
};

constexpr std::array<KindName, 11> kKindNames = {{{"refuse", FaultKind::Refuse},
                                                  {"500", FaultKind::ServerError},
                                                  {"empty", FaultKind::Empty},
                                                  {"cut", FaultKind::Cut},
                                                  {"garbage", FaultKind::Garbage},
                                                  {"hang", FaultKind::Hang},
                                                  {"drip", FaultKind::Drip},
                                                  {"huge", FaultKind::Huge},
                                                  {"bomb", FaultKind::Bomb},
                                                  {"many", FaultKind::Many},
                                                  {"wrong-count", FaultKind::WrongCount}}};

constexpr std::size_t kHugeSize = 64u << 20, kManyTimes = 100;

FaultKind KindOf(std::string_view name) {
  const auto* found = std::ranges::find(kKindNames, name, &KindName::name);
  if (found == kKindNames.end()) throw RuntimeError("unknown kind of fault: " + std::string(name));
  return found->kind;
}

// Elements have a line each.
bool IsElement(std::string_view line) { return line.find("</") != line.npos && !line.starts_with("</"); }

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    lines.push_back(text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1));
    text.remove_prefix(lines.back().size());
  }
  return lines;
}

// Of every five elements the second is left out and the fourth comes twice.
std::string WithWrongCounts(std::string_view body) {
  std::string wrong;
  int elements = 0;
  for (const std::string_view line : LinesOf(body)) {
    const int place = IsElement(line) ? elements++ % 5 : 0;
    if (place == 1) continue;
    wrong += line;
    if (place == 3) wrong += line;
  }
  return wrong;
}

// The same elements over and over, until the text is no smaller than that. What is no XML stays whole, with
// elements behind it.
std::string WithSize(std::size_t size, std::string_view body) {
  std::string start, elements, end;
  for (const std::string_view line : LinesOf(body.starts_with('<') ? body : ""))
    (line.starts_with("</") ? end : IsElement(line) ? elements : start) += line;
  if (start.empty()) start = body;
  if (elements.empty()) elements = "<Desc>cloudy</Desc>\n";
  std::string huge = start;
  huge.reserve(size + start.size() + elements.size() + end.size());
  while (huge.size() < size) huge += elements;
  return huge += end;
}

// Every byte value, none of which begins a document or a picture.
std::string Garbage() {
  std::string garbage;
  for (int i = 255; i >= 0; --i) garbage += static_cast<char>(i);
  return garbage;
}

// A GIF whose header tells of 60000 by 60000 pixels of two colours; of its data there is the beginning of a
// row.
std::string Bomb() {
  constexpr unsigned char bytes[] = {'G',  'I', 'F',  '8',  '9',  'a',  0x60, 0xEA, 0x60, 0xEA,
                                     0x80, 0,                                                 // the screen
                                     0,    0,   0,    0,    255,  255,  255,                  // its colours
                                     0x2C, 0,   0,    0,    0,    0x60, 0xEA, 0x60, 0xEA, 0,  // the picture
                                     2,    4,   0x84, 0x8F, 0xA9, 0xCB, 0,    0x3B};  // its data and the end
  return {std::begin(bytes), std::end(bytes)};
}

}  // namespace

Fault ReadFault(std::string_view text) {
  const std::size_t equals = text.rfind('=');
  if (!text.starts_with('/') || equals == text.npos) throw RuntimeError("a fault is PATH=KIND");
  const std::string_view target = text.substr(0, equals);
  const std::string_view kind_text = text.substr(equals + 1);
  const std::size_t at = std::min(kind_text.find('@'), kind_text.size());
  const std::size_t question = std::min(target.find('?'), target.size());

  Fault fault;
  fault.kind = KindOf(kind_text.substr(0, at));
  fault.path = target.substr(0, question);
  if (question < target.size()) fault.query_piece = target.substr(question + 1);
  if (at == kind_text.size()) return fault;
  const char* const end = kind_text.data() + kind_text.size();
  const auto read = std::from_chars(kind_text.data() + at + 1, end, fault.first);
  if (read.ptr != end || read.ec != std::errc() || fault.first < 1)
    throw RuntimeError("a fault begins at @1 or later");
  return fault;
}

FaultKind FaultBook::Befall(std::string_view path, std::string_view query) {
  const std::lock_guard lock(mutex_);
  FaultKind befallen = FaultKind::None;
  for (Fault& fault : faults_) {
    if (fault.path != path || query.find(fault.query_piece) == query.npos) continue;
    if (++fault.seen >= fault.first && befallen == FaultKind::None) befallen = fault.kind;
  }
  return befallen;
}

Reply Spoil(FaultKind kind, Reply reply) {
  switch (kind) {
    case FaultKind::ServerError: return {.status = 500, .type = "text/plain", .body = "server error\n"};
    case FaultKind::Empty: reply.body.clear(); break;
    case FaultKind::Garbage: reply.body = Garbage(); break;
    case FaultKind::Bomb: return {.type = "image/gif", .body = Bomb()};
    case FaultKind::Huge: reply.body = WithSize(kHugeSize, reply.body); break;
    case FaultKind::Many: reply.body = WithSize(kManyTimes * reply.body.size(), reply.body); break;
    case FaultKind::WrongCount: reply.body = WithWrongCounts(reply.body); break;
    default: break;
  }
  return reply;
}

}  // namespace skyloft::feed
