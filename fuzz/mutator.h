// Bytes near those of the seeds, the same ones in every run.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace skyloft {

class Mutator {
 public:
  // At least one seed.
  explicit Mutator(std::vector<std::string> seeds) : seeds_(std::move(seeds)) {}

  // One of the seeds after one to eight changes; kLargest bytes at most.
  std::string Next();

 private:
  static constexpr std::size_t kLargest = 1 << 16;

  // Below `bound`, which is at least 1.
  std::size_t Below(std::size_t bound) { return random_() % bound; }
  const std::string& AnySeed() { return seeds_[Below(seeds_.size())]; }
  // Some bytes of a text, 32 at most.
  std::string Piece(const std::string& text);
  void Change(std::string& bytes);

  std::vector<std::string> seeds_;
  std::mt19937 random_{1};
};

}  // namespace skyloft
