// SPDX-License-Identifier: MIT
// Runs a fuzz entry without a fuzzer: each seed, then mutations of the seeds. The same ones every time, so
// that a failure stands again on the next run.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

constexpr int kUsualMutations = 5000;
constexpr std::size_t kLargestMutation = 8000;

std::string ReadBytes(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// In the order of names, which the order of a folder is not.
std::vector<std::string> ReadSeeds(const std::vector<std::string>& folders) {
  std::vector<fs::path> paths;
  for (const std::string& folder : folders) {
    for (const auto& entry : fs::directory_iterator(folder))
      paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> seeds;
  for (const fs::path& path : paths)
    seeds.push_back(ReadBytes(path));
  return seeds;
}

// The words between quotes, one a line; "\\" and "\xNN" are the escapes that the file uses.
std::vector<std::string> ReadWords(const fs::path& dictionary) {
  std::vector<std::string> words;
  std::ifstream stream(dictionary);
  for (std::string line; std::getline(stream, line);) {
    const std::size_t begin = line.find('"');
    if (line.empty() || line[0] == '#' || begin == std::string::npos) continue;
    std::string word;
    for (std::size_t at = begin + 1; at + 1 < line.size(); ++at) {
      if (line[at] != '\\') {
        word += line[at];
      } else if (line[++at] == 'x') {
        word += static_cast<char>(std::stoi(line.substr(at + 1, 2), nullptr, 16));
        at += 2;
      } else {
        word += line[at];
      }
    }
    words.push_back(word);
  }
  return words;
}

class Mutator {
 public:
  Mutator(std::vector<std::string> seeds, std::vector<std::string> words)
      : seeds_(std::move(seeds)), words_(std::move(words)) {}

  std::string Next() {
    std::string text = Pick(seeds_);
    if (text.size() > kLargestMutation)
      text = text.substr(Below(text.size() - kLargestMutation), kLargestMutation);
    for (std::size_t n = 1 + Below(8); n > 0; --n)
      Change(text);
    return text;
  }

 private:
  std::size_t Below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }
  const std::string& Pick(const std::vector<std::string>& from) { return from[Below(from.size())]; }

  void Change(std::string& text) {
    const std::size_t at = Below(text.size() + 1);
    const std::size_t length = Below(std::min<std::size_t>(text.size() - at, 64) + 1);
    switch (Below(6)) {
      case 0:
        text.insert(at, Pick(words_));
        break;
      case 1:
        text.replace(at, length, Pick(words_));
        break;
      case 2:
        text.erase(at, length);
        break;
      case 3:
        text.insert(at, text.substr(Below(text.size()), length));
        break;
      case 4:
        text.insert(at, 1, static_cast<char>(Below(256)));
        break;
      default:
        if (at < text.size()) text[at] = static_cast<char>(Below(256));
    }
  }

  std::mt19937_64 random_{20240229};
  std::vector<std::string> seeds_;
  std::vector<std::string> words_;
};

// Another number by KEV_MUTATIONS, where only the seeds count.
int Mutations() {
  const char* given = std::getenv("KEV_MUTATIONS");
  return given == nullptr ? kUsualMutations : std::atoi(given);
}

void Run(const std::string& text) {
  // A block of exactly this size, so that the sanitizer sees each byte read behind it.
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: " << argv[0] << " DICTIONARY SEED_FOLDER...\n";
    return 2;
  }
  std::vector<std::string> folders(argv + 2, argv + argc);
  if (const char* more = std::getenv("KEV_MORE_SEEDS")) folders.emplace_back(more);
  const std::vector<std::string> seeds = ReadSeeds(folders);
  if (seeds.empty()) {
    std::cerr << "no seeds\n";
    return 2;
  }
  for (const std::string& seed : seeds)
    Run(seed);
  Mutator mutator(seeds, ReadWords(argv[1]));
  const int mutations = Mutations();
  for (int n = 0; n < mutations; ++n)
    Run(mutator.Next());
  std::cout << seeds.size() << " seeds and " << mutations << " mutations\n";
  return 0;
}
