#include "base/guard.h"
#include "base/values.h"
#include "platform/doubles.h"
#include "platform/files.h"

namespace skyloft {
namespace {

void FailWhenDue() {
  if (Doubles.file_failure.Due()) throw RuntimeError("the disk failed");
}

}  // namespace

bool FileExists(const std::string& path) { return Doubles.files.contains(LowerCase(path)); }

std::string ReadFile(const std::string& path) {
  FailWhenDue();
  const auto found = Doubles.files.find(LowerCase(path));
  if (found == Doubles.files.end()) throw RuntimeError("no file " + path);
  return found->second;
}

void WriteFile(const std::string& path, const std::string& bytes) {
  FailWhenDue();
  Doubles.files[LowerCase(path)] = bytes;
  Doubles.file_times[LowerCase(path)] = Doubles.now;
}

void DeleteFile(const std::string& path) {
  FailWhenDue();
  if (Doubles.files.erase(LowerCase(path)) == 0) throw RuntimeError("no file " + path);
}

Date FileTime(const std::string& path) {
  if (!FileExists(path)) throw RuntimeError("no file " + path);
  return Doubles.file_times[LowerCase(path)];
}

std::vector<std::string> ListFiles(const std::string& folder) {
  std::vector<std::string> names;
  const std::string start = LowerCase(folder) + (folder.ends_with('\\') ? "" : "\\");
  for (const auto& [path, bytes] : Doubles.files) {
    if (path.starts_with(start)) names.push_back(path.substr(start.size()));
  }
  return names;
}

}  // namespace skyloft
