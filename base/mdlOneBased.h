// SPDX-License-Identifier: MIT
// A fixed array whose first element has the index 1, as the tables of boxes and channels count.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace vk {

/// Indices run from 1 to N; another index is caught by an assertion in debug builds.
template <typename T, std::size_t N>
class OneBased {
 public:
  constexpr T& operator[](std::size_t index) {
    assert(index >= 1 && index <= N);
    return items_[index - 1];
  }
  constexpr const T& operator[](std::size_t index) const {
    assert(index >= 1 && index <= N);
    return items_[index - 1];
  }
  static constexpr std::size_t size() { return N; }
  constexpr void fill(const T& value) { items_.fill(value); }
  constexpr auto begin() { return items_.begin(); }
  constexpr auto end() { return items_.end(); }
  constexpr auto begin() const { return items_.begin(); }
  constexpr auto end() const { return items_.end(); }
  bool operator==(const OneBased&) const = default;

 private:
  std::array<T, N> items_{};
};

}  // namespace vk
