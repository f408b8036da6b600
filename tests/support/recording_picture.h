// SPDX-License-Identifier: MIT
// A picture that notes a line for each operation instead of drawing. A character is as wide as
// half the font size and twice as high as wide.
#pragma once

#include <fmt/format.h>

#include <string>

#include "base/clsSurface.h"

namespace vktest {

class RecordingPicture : public vk::clsSurface {
 public:
  RecordingPicture(std::string name, int width, int height)
      : name_(std::move(name)), width_(width), height_(height) {}
  /// Several pictures that share one log note their names as well.
  RecordingPicture(std::string name, int width, int height, std::string& log)
      : name_(std::move(name)), width_(width), height_(height), log_(&log) {}
  RecordingPicture(const RecordingPicture&) = delete;
  RecordingPicture& operator=(const RecordingPicture&) = delete;

  std::string take() {
    std::string text;
    text.swap(*log_);
    return text;
  }
  void resize(int width, int height) {
    width_ = width;
    height_ = height;
  }

  int width() const override { return width_; }
  int height() const override { return height_; }
  void clear(vk::Colour colour) override { note("clear {:06X}", colour); }
  void setLineStyle(vk::LineStyle style) override {
    note("{}", style == vk::LineStyle::kDotted ? "dotted" : "solid");
  }
  void setLineWidth(int pixels) override { note("wide {}", pixels); }
  void line(int x1, int y1, int x2, int y2, vk::Colour colour) override {
    note("line {},{} {},{} {:06X}", x1, y1, x2, y2, colour);
  }
  void point(int x, int y, vk::Colour colour) override { note("point {},{} {:06X}", x, y, colour); }
  void circle(int x, int y, int radius, vk::Colour colour) override {
    note("circle {},{} r{} {:06X}", x, y, radius, colour);
  }
  void arc(int x, int y, int radius, int from, int to, vk::Colour colour) override {
    note("arc {},{} r{} {}..{} {:06X}", x, y, radius, from, to, colour);
  }
  void disc(int x, int y, int radius, vk::Colour colour) override {
    note("disc {},{} r{} {:06X}", x, y, radius, colour);
  }
  void box(int x1, int y1, int x2, int y2, vk::Colour colour) override {
    note("box {},{} {},{} {:06X}", x1, y1, x2, y2, colour);
  }
  void filledBox(int x1, int y1, int x2, int y2, vk::Colour colour) override {
    note("filled {},{} {},{} {:06X}", x1, y1, x2, y2, colour);
  }
  void invertedBox(int x1, int y1, int x2, int y2, vk::Colour colour) override {
    note("inverted {},{} {},{} {:06X}", x1, y1, x2, y2, colour);
  }
  int fontSize() const override { return fontSize_; }
  void setFontSize(int points) override { fontSize_ = points; }
  void text(int x, int y, const std::string& text, vk::Colour colour) override {
    note("text {},{} {:06X} [{}]", x, y, colour, text);
  }
  int textWidth(const std::string& text) const override {
    return fontSize_ * static_cast<int>(text.size()) / 2;
  }
  int textHeight(const std::string&) const override { return fontSize_; }
  void copy(const vk::clsSurface& from, int x, int y, int width, int height, int fromX,
            int fromY) override {
    note("copy {} {},{} {}x{} to {},{}", dynamic_cast<const RecordingPicture&>(from).name_, fromX,
         fromY, width, height, x, y);
  }
  void refresh() override { note("refresh"); }

 private:
  template <typename... Values>
  void note(fmt::format_string<Values...> format, Values&&... values) {
    if (log_ != &own_) *log_ += name_ + ": ";
    *log_ += fmt::format(format, std::forward<Values>(values)...) + "\n";
  }

  std::string name_;
  int width_;
  int height_;
  int fontSize_ = 16;
  std::string own_;
  std::string* log_ = &own_;
};

}  // namespace vktest
