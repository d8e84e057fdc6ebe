// skyloft-feed: the companion server.
#include <malloc.h>
#include <unistd.h>

#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <thread>

#include "base/guard.h"
#include "feedserver/bulletin_file.h"
#include "feedserver/clock.h"
#include "feedserver/options.h"
#include "feedserver/picture_store.h"
#include "feedserver/server.h"

namespace skyloft::feed {
namespace {

std::string ReadFile(const std::string& file_name) {
  std::ifstream file(file_name, std::ios::binary);
  if (!file) throw RuntimeError("cannot read " + file_name);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Whoever started the server holds the other end of its input: its lines are theirs, and it never outlives
// them.
void HearInput(Clock& clock) {
  for (std::string line; std::getline(std::cin, line);) std::cout << Obey(line, clock) << std::endl;
  _exit(0);
}

int Serve(const std::vector<std::string>& arguments) {
  Options options = ReadOptions(arguments);
  if (options.wants_help) {
    std::cout << HelpText();
    return 0;
  }
  if (options.wants_version) {
    std::cout << "skyloft-feed " << World().offered_version << "\n";
    return 0;
  }
  if (!options.update_file.empty()) options.world.update_file = ReadFile(options.update_file);
  BulletinFile bulletins(options.bulletins_file);
  options.world.bulletins = [&bulletins](Date now) { return bulletins.Read(now); };
  PictureStore pictures;
  options.world.pictures = &pictures;
  FaultBook faults;
  for (Fault& fault : options.faults) faults.Add(std::move(fault));
  RequestLog log(options.log_file);
  Clock clock(options.now);
  bulletins.Read(clock.Now());
  Server server({options.world, [&clock] { return clock.Now(); }, faults, log}, options.address, options.port,
                options.threads);
  std::cout << "listening " << server.Port() << std::endl;
  if (!options.stays) std::thread(HearInput, std::ref(clock)).detach();
  server.Run();
  return 0;
}

}  // namespace
}  // namespace skyloft::feed

int main(int argc, char** argv) {
#ifdef M_ARENA_MAX
  mallopt(M_ARENA_MAX, 1);  // one for all threads: a few megabytes less for a server that mostly waits
#endif
  try {
    return skyloft::feed::Serve({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << "skyloft-feed: " << error.what() << std::endl;
    return 2;
  }
}
