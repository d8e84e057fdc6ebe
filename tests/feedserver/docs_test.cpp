// The examples of docs/feed.md are what the server answers.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "feedserver/phrases.h"
#include "running_server.h"

namespace skyloft::feed {
namespace {

struct Example {
  std::string request;  // "GET /path", with the version behind it where the whole reply is shown
  std::vector<std::string> reply;
};

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string Documentation() {
  std::ifstream file(SKYLOFT_FEED_DOCS, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Each stands between lines of three backticks: the request, an empty line, the reply.
std::vector<Example> Examples() {
  std::vector<Example> examples;
  bool is_inside = false;
  for (const std::string& line : LinesOf(Documentation())) {
    if (line == "```http") {
      examples.emplace_back();
      is_inside = true;
    } else if (line == "```") {
      is_inside = false;
    } else if (is_inside && examples.back().request.empty()) {
      examples.back().request = line;
    } else if (is_inside) {
      examples.back().reply.push_back(line);
    }
  }
  for (Example& example : examples) {
    if (!example.reply.empty()) example.reply.erase(example.reply.begin());
  }
  return examples;
}

// "[...]" stands for any lines.
bool Matches(const std::vector<std::string>& shown, const std::vector<std::string>& lines) {
  std::size_t at = 0;
  bool is_gap = false;
  for (const std::string& line : shown) {
    if (line == "[...]") {
      is_gap = true;
      continue;
    }
    while (is_gap && at < lines.size() && lines[at] != line) ++at;
    if (at == lines.size() || lines[at] != line) return false;
    is_gap = false;
    ++at;
  }
  return is_gap || at == lines.size();
}

TEST(Documentation, EachExampleIsWhatTheServerAnswers) {
  const std::string bulletins = "/tmp/skyloft_docs_" + std::to_string(getpid());
  const std::string line =
      "66044, 33131          | TOR | -5 | +45 | A TORNADO WAS SEEN 5 MILES WEST OF TOWN, MOVING EAST. TAKE "
      "SHELTER.\n";
  EXPECT_NE(Documentation().find(line), std::string::npos);
  std::ofstream(bulletins) << line;
  const RunningServer server({"--port", "0", "--bulletins", bulletins});
  const std::vector<Example> examples = Examples();
  EXPECT_GE(examples.size(), 13u);
  for (const Example& example : examples) {
    const bool is_whole = example.request.ends_with(" HTTP/1.0");
    Client client(server.Port());
    client.Send(example.request + (is_whole ? "" : " HTTP/1.0") + "\r\n\r\n");
    const std::string reply = client.Receive();
    EXPECT_TRUE(Matches(example.reply, LinesOf(is_whole ? reply : BodyOf(reply)))) << example.request << "\n"
                                                                                   << reply;
  }
  std::remove(bulletins.c_str());
}

TEST(Documentation, TellsTheWordsAndThePictureOfEveryCode) {
  const std::string text = Documentation();
  const auto cells = [](int code) {
    const Phrase& phrase = PhraseOf(code);
    return "| " + std::to_string(code) + " | " + std::string(phrase.text) + " | `" +
           std::string(phrase.icon) + "` |";
  };
  for (int code = 1; code <= 20; ++code)
    EXPECT_NE(text.find(cells(code) + cells(code + 20).substr(1) + "\n"), text.npos) << code;
}

TEST(Documentation, TellsTheNamesThatAClientGoesBy) {
  const std::string text = Documentation();
  for (const char* name :
       {"Hourly Planner", "Weekly Planner", "Historical Conditions", "Reflectivity", "1-Hour Precipitation",
        "Total Precipitation", "Forecast Radar", "RouteScope by Road", "NEXRAD Radar", "Technical Support",
        "Monthly Newsletter", "Share Skyloft"}) {
    EXPECT_NE(text.find("\"" + std::string(name) + "\""), text.npos) << name;
  }
}

TEST(Documentation, HasAnExampleOfEachQueryAndDocument) {
  std::string requests;
  for (const Example& example : Examples()) requests += example.request + "\n";
  for (const char* piece : {"/hosts.xml", "/location_setup.asp?pc=", "/location_setup.asp?city=", "d=meta",
                            "d=current&", "d=currenthistorical", "st=1&et=2", "&lat=", "fcsttype=extended",
                            "/bulletins.asp", "/messages.xml", "/products.", "/sectors."}) {
    EXPECT_NE(requests.find(piece), std::string::npos) << piece;
  }
}

}  // namespace
}  // namespace skyloft::feed
