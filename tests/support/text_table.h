// SPDX-License-Identifier: MIT
// A test table that is one text: entries "question=answer" between bars. Blanks count, line ends
// do not.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace vktest {

/// Asks every question of the table and compares all answers at once, an entry per line.
inline void expectAnswers(std::string table,
                          const std::function<std::string(const std::string&)>& answer) {
  std::erase(table, '\n');
  std::string answered;
  std::istringstream entries(table);
  for (std::string entry; std::getline(entries, entry, '|');) {
    const std::string question = entry.substr(0, entry.find('='));
    answered += (answered.empty() ? "" : "\n") + question + "=" + answer(question);
  }
  std::replace(table.begin(), table.end(), '|', '\n');
  EXPECT_NE(table, "");
  EXPECT_EQ(answered, table);
}

/// The numbers of a question, with blanks or commas between them.
inline std::vector<int32_t> numbersOf(std::string text) {
  std::replace(text.begin(), text.end(), ',', ' ');
  std::istringstream input(text);
  std::vector<int32_t> numbers;
  for (int32_t number = 0; input >> number;) numbers.push_back(number);
  return numbers;
}

}  // namespace vktest
