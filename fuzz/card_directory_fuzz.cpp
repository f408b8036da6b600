// SPDX-License-Identifier: MIT
// The root directory of a card, of any bytes and any length. The first byte says how often the rest
// is repeated, so that a short input can fill a directory; a second reading of the entries, by
// itself, says which files must come out.
#include <algorithm>
#include <limits>
#include <vector>

#include "base/mdlText.h"
#include "fuzz/fuzz_check.h"
#include "link/mdlCardDirectory.h"

using vkfuzz::require;

namespace {

constexpr std::size_t kEntry = 32;
constexpr std::size_t kFields = sizeof(",yyyy/mm/dd hh:mm:ss") - 1;

struct Expected {
  std::string stem;
  uint32_t size;
  uint32_t headerSize;
};

uint32_t sizeAt(const unsigned char* entry) {
  return entry[28] + 256U * entry[29] + 65536U * entry[30] + 16777216U * entry[31];
}

std::vector<Expected> expectedFiles(const std::vector<unsigned char>& image) {
  std::vector<Expected> files;
  uint32_t headerSize = 0;
  for (std::size_t at = 0; at + kEntry <= std::min(image.size(), vk::kDirectoryBytes);
       at += kEntry) {
    const unsigned char* entry = image.data() + at;
    if (entry[0] == 0) break;
    if (at < 2 * kEntry || entry[0] == 0xE5) continue;
    const std::string name(entry, entry + 8);
    const std::string extension(entry + 8, entry + 11);
    if (extension == "HED") headerSize = sizeAt(entry);
    if (extension == "DAT") {
      files.push_back({name.substr(0, name.find_last_not_of(' ') + 1), sizeAt(entry), headerSize});
    }
  }
  return files;
}

bool looksLike(std::string_view text, std::string_view pattern) {
  return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(),
                    [](char c, char p) { return p == '9' ? c >= '0' && c <= '9' : c == p; });
}

void checkFile(const vk::CardFile& file, const Expected& expected) {
  require(file.size == expected.size && file.headerSize == expected.headerSize,
          "sizes are those of the entries", file.text);
  const std::string front = expected.stem + ".DAT," + std::to_string(file.size) + ",";
  require(file.text.starts_with(front), "the text begins with name and size", file.text);
  const std::string_view rest = std::string_view(file.text).substr(front.size());
  require(rest.size() > kFields, "a date, a time and a header size follow", file.text);
  require(looksLike(rest.substr(0, kFields), "9999/99/99 99:99:99,"), "a date and a time",
          file.text);
  const std::string_view header = rest.substr(kFields);
  require(header.size() >= 5 && vk::readDouble(header) == static_cast<double>(file.headerSize),
          "the header size has five digits or more", file.text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  std::vector<unsigned char> image;
  for (unsigned round = 0; round <= data[0] && image.size() <= vk::kDirectoryBytes + kEntry;
       ++round) {
    image.insert(image.end(), data + 1, data + size);
    if (size == 1) break;
  }
  const auto expected = expectedFiles(image);
  std::vector<vk::CardFile> files(3);
  const int32_t result = vk::decodeCardDirectory(image, files);
  require(files.size() == std::min(expected.size(), vk::kMaxCardFiles), "all files, to 255");
  require(result == (expected.size() > vk::kMaxCardFiles ? vk::kDirectoryOverrun : 0),
          "the overrun is told");
  for (std::size_t i = 0; i < files.size(); ++i) checkFile(files[i], expected[i]);
  return 0;
}
