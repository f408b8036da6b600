// SPDX-License-Identifier: MIT
// Every operation on the dots of the surface, on a screen of one and of two dots to a pixel.
#include "desktop/clsPictureBox.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace vktest {
namespace {

using vk::LineStyle;

constexpr vk::Colour kInk = 0xFFFFFF;
constexpr int kFar = 1000000;

class Picture : public vk::clsPictureBox {
 public:
  Picture(int ratio, int columns, int rows) : ratio_(ratio) {
    resize(columns, rows);
    clear(0);
  }
  QImage image() { return grab().toImage(); }

 protected:
  int metric(PaintDeviceMetric which) const override {
    if (which == PdmDevicePixelRatio) return ratio_;
    if (which == PdmDevicePixelRatioScaled)
      return static_cast<int>(ratio_ * devicePixelRatioFScale());
    return clsPictureBox::metric(which);
  }

 private:
  int ratio_;
};

/// A character for each dot, "#" for every colour but the background.
std::string dots(const QImage& shown) {
  std::string text;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      text += shown.pixelColor(x, y) == QColor(Qt::black) ? '.' : '#';
    }
    text += '\n';
  }
  return text;
}

struct Row {
  const char* name;
  std::function<void(Picture&)> draw;
  const char* dots;
};

/// Each on a picture of its own, drawn over what is prepared; `fine`: with four dots to a pixel
/// too.
void expectDots(
    std::initializer_list<Row> rows, bool fine,
    const std::function<void(Picture&)>& prepare = [](Picture&) {}) {
  for (const auto& row : rows) {
    const auto drawn = [&](int ratio) {
      Picture picture(ratio, 6, 4);
      prepare(picture);
      row.draw(picture);
      return picture.image();
    };
    const QImage single = drawn(1);
    EXPECT_EQ(dots(single), row.dots) << row.name;
    EXPECT_TRUE(!fine || dots(drawn(2)) == dots(single.scaled(12, 8))) << row.name;
  }
}

template <typename Operation, typename... Numbers>
auto ink(Operation operation, Numbers... at) {
  return [=](Picture& picture) { (picture.*operation)(at..., kInk); };
}

auto line(int x1, int y1, int x2, int y2) {
  return ink(&Picture::line, x1, y1, x2, y2);
}

TEST(PictureBox, LinesAlongTheAxesPointsAndBoxes) {
  const auto dotted = [](int x1, int y1, int x2, int y2) {
    return [=](Picture& picture) {
      picture.setLineStyle(LineStyle::kDotted);
      picture.line(x1, y1, x2, y2, kInk);
    };
  };
  const auto wide = [](int pixels, int x1, int y1, int x2, int y2) {
    return [=](Picture& picture) {
      picture.setLineWidth(pixels);
      picture.line(x1, y1, x2, y2, kInk);
    };
  };
  const std::initializer_list<Row> rows = {
      {"to the right", line(1, 1, 4, 1), "......\n.###..\n......\n......\n"},
      {"to the left", line(4, 1, 1, 1), "......\n..###.\n......\n......\n"},
      {"down", line(1, 0, 1, 2), ".#....\n.#....\n......\n......\n"},
      {"up", line(1, 2, 1, 0), "......\n.#....\n.#....\n......\n"},
      {"nothing", line(1, 1, 1, 1), "......\n......\n......\n......\n"},
      {"across all", line(-kFar, 1, kFar, 1), "......\n######\n......\n......\n"},
      {"from beyond", line(kFar, 1, 3, 1), "......\n....##\n......\n......\n"},
      {"to beyond", line(2, 2, 2, -kFar), "..#...\n..#...\n..#...\n......\n"},
      {"outside", line(kFar, 1, kFar + 5, 1), "......\n......\n......\n......\n"},
      {"two wide", wide(2, 1, 1, 4, 1), "......\n.###..\n.###..\n......\n"},
      {"three wide", wide(3, 2, 3, 2, 1), "......\n......\n.###..\n.###..\n"},
      {"no width", wide(0, 1, 1, 4, 1), "......\n.###..\n......\n......\n"},
      {"dotted", dotted(0, 1, 6, 1), "......\n#..#..\n......\n......\n"},
      {"dotted back", dotted(5, 1, -1, 1), "......\n..#..#\n......\n......\n"},
      {"dotted down", dotted(2, 0, 2, 4), "..#...\n......\n......\n..#...\n"},
      {"dotted from beyond", dotted(-4, 1, 6, 1), "......\n..#..#\n......\n......\n"},
      {"dotted far", dotted(-kFar, 1, kFar, 1), "......\n..#..#\n......\n......\n"},
      {"point", ink(&Picture::point, 5, 3), "......\n......\n......\n.....#\n"},
      {"point outside", ink(&Picture::point, 6, -1), "......\n......\n......\n......\n"},
      {"box", ink(&Picture::box, 1, 0, 4, 2), ".####.\n.#..#.\n.####.\n......\n"},
      {"box backward", ink(&Picture::box, 4, 2, 1, 0), ".####.\n.#..#.\n.####.\n......\n"},
      {"box cut", ink(&Picture::box, -kFar, 1, 2, kFar), "......\n###...\n..#...\n..#...\n"},
      {"filled", ink(&Picture::filledBox, 4, 1, 3, 2), "......\n...##.\n...##.\n......\n"},
      {"filled all", ink(&Picture::filledBox, -kFar, kFar, kFar, -kFar),
       "######\n######\n######\n######\n"},
  };
  expectDots(rows, true);
}

TEST(PictureBox, ObliqueLinesLeaveOutTheirEndPoint) {
  const std::initializer_list<Row> rows = {
      {"right down", line(0, 0, 5, 2), "##....\n..##..\n....#.\n......\n"},
      {"and back", line(5, 2, 0, 0), ".#....\n..##..\n....##\n......\n"},
      {"right up", line(0, 3, 5, 1), "......\n....#.\n..##..\n##....\n"},
      {"left down", line(5, 1, 0, 3), "......\n....##\n..##..\n.#....\n"},
      {"steep", line(0, 0, 1, 4), "#.....\n#.....\n.#....\n.#....\n"},
      {"steep back", line(1, 3, 0, -1), "#.....\n.#....\n.#....\n.#....\n"},
      {"steep to the left", line(3, 0, 2, 4), "...#..\n...#..\n...#..\n..#...\n"},
      {"diagonal", line(4, 3, 1, 0), "......\n..#...\n...#..\n....#.\n"},
      {"from far to far", line(-kFar, -kFar, kFar, kFar), "#.....\n.#....\n..#...\n...#..\n"},
      {"leaves and comes", line(-kFar, 0, kFar, 4), "......\n......\n######\n......\n"},
      {"outside", line(-5, 3, 3, 11), "......\n......\n......\n......\n"},
  };
  expectDots(rows, false);
  Picture fine(2, 6, 4);
  fine.line(0, 0, 5, 2, kInk);
  EXPECT_TRUE(dots(fine.image()).starts_with("##..........\n#####.......\n..#####.....\n"));
}

TEST(PictureBox, BlocksMoveWithinOnePictureInEachDirection) {
  const auto moved = [](int x, int y, int width, int height, int fromX, int fromY) {
    return [=](Picture& picture) { picture.copy(picture, x, y, width, height, fromX, fromY); };
  };
  const std::initializer_list<Row> rows = {
      {"left", moved(0, 0, 5, 4, 1, 0), "#..#..\n.#....\n....##\n..####\n"},
      {"right", moved(1, 0, 5, 4, 0, 0), "..#..#\n...#..\n......\n....##\n"},
      {"up", moved(0, 0, 6, 3, 0, 1), "..#...\n.....#\n...###\n...###\n"},
      {"down", moved(0, 1, 6, 3, 0, 0), ".#..#.\n.#..#.\n..#...\n.....#\n"},
      {"down right", moved(1, 1, 3, 2, 0, 0), ".#..#.\n..#...\n...#.#\n...###\n"},
      {"cut", moved(-2, 2, 100, 100, 0, 1), ".#..#.\n..#...\n#....#\n...###\n"},
      {"beyond", moved(kFar, 0, 6, 4, 0, 0), ".#..#.\n..#...\n.....#\n...###\n"},
      {"from beyond", moved(0, 0, 6, 4, -kFar, 0), ".#..#.\n..#...\n.....#\n...###\n"},
  };
  expectDots(rows, true, [](Picture& picture) {
    for (const QPoint at : {QPoint(1, 0), QPoint(4, 0), QPoint(2, 1), QPoint(5, 2)})
      picture.point(at.x(), at.y(), kInk);
    picture.line(3, 3, 6, 3, kInk);
  });
}

TEST(PictureBox, ArcsRunCounterClockwiseFromTheRight) {
  constexpr int kMiddle = 15;
  constexpr int kRadius = 10;
  const struct {
    int from, to;
    const char* quarters;  ///< right up, left up, left down, right down
  } rows[] = {
      {0, 90, "x---"}, {90, 180, "-x--"}, {90, 360, "-xxx"}, {270, 90, "x--x"}, {0, 360, "xxxx"}};
  for (const int ratio : {1, 2}) {
    for (const auto& row : rows) {
      Picture picture(ratio, 2 * kMiddle + 1, 2 * kMiddle + 1);
      picture.setSmooth(ratio == 2);
      picture.arc(kMiddle, kMiddle, kRadius, row.from, row.to, kInk);
      const QImage shown = picture.image();
      std::string quarters;
      for (const QPoint way : {QPoint(1, -1), QPoint(-1, -1), QPoint(-1, 1), QPoint(1, 1)}) {
        bool drawn = false;
        for (int i = kRadius / 2; i < kRadius; ++i) {
          const QPoint at = QPoint(kMiddle, kMiddle) + way * i;
          drawn = drawn || shown.pixelColor(at * ratio) != QColor(Qt::black);
        }
        quarters += drawn ? 'x' : '-';
      }
      EXPECT_EQ(quarters, row.quarters) << row.from << " to " << row.to << " ratio " << ratio;
    }
  }
}

/// The greatest difference of brightness of a dot.
int difference(const QImage& one, const QImage& other) {
  int most = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      most = std::max(most, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    }
  }
  return most;
}

TEST(PictureBox, SmoothCirclesAreEvenToAllSides) {
  constexpr int kRounding = 24;
  for (const int ratio : {1, 2}) {
    Picture picture(ratio, 21, 21);
    picture.setSmooth(true);
    picture.setLineWidth(2);
    picture.disc(10, 10, 6, 0x0000FF);
    picture.circle(10, 10, 8, kInk);
    const QImage shown = picture.image();
    EXPECT_LE(difference(shown, shown.mirrored(true, false)), kRounding) << ratio;
    EXPECT_LE(difference(shown, shown.transformed(QTransform().rotate(90))), kRounding) << ratio;
    EXPECT_EQ(shown.pixelColor(10 * ratio, 10 * ratio), QColor(255, 0, 0));
    EXPECT_EQ(shown.pixelColor(2 * ratio, 10 * ratio), QColor(Qt::white));
  }
}

TEST(PictureBox, InvertedTextIsReadableOnBothSides) {
  Picture picture(1, 20, 10);
  picture.clear(0xFFFFFF);
  picture.filledBox(5, 2, 14, 7, 0x800000);
  picture.invertedBox(9, 9, 0, 0, 0x800000);
  const QImage shown = picture.image();
  // Colours are blue-green-red: 0x800000 is a dark blue.
  EXPECT_EQ(shown.pixelColor(16, 1), QColor(0xFF, 0xFF, 0xFF));
  EXPECT_EQ(shown.pixelColor(12, 5), QColor(0x00, 0x00, 0x80));
  EXPECT_EQ(shown.pixelColor(2, 1), QColor(0x00, 0x00, 0x80));
  EXPECT_EQ(shown.pixelColor(7, 5), QColor(0xFF, 0xFF, 0xFF));
}

TEST(PictureBox, FontSizesAreInPointsWhateverSetTheFont) {
  Picture picture(1, 60, 40);
  picture.setFontSize(20);
  EXPECT_EQ(picture.fontSize(), 20);
  const int wide = picture.textWidth("0123");
  picture.setFontSize(10);
  EXPECT_NEAR(picture.textWidth("0123"), wide / 2.0, 3);
  picture.setFontSize(0);
  EXPECT_EQ(picture.fontSize(), 1);
  QFont inPixels = picture.font();
  inPixels.setPixelSize(40);
  picture.setFont(inPixels);
  EXPECT_GT(picture.fontSize(), 20);
  // The text stays within the box that its measures promise.
  picture.setFontSize(12);
  picture.text(2, 3, "W", kInk);
  EXPECT_NE(dots(picture.image()).find('#'), std::string::npos);
  picture.filledBox(2, 3, 2 + picture.textWidth("W"), 3 + picture.textHeight("W"), 0);
  EXPECT_EQ(dots(picture.image()).find('#'), std::string::npos);
}

}  // namespace
}  // namespace vktest
