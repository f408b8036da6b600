// SPDX-License-Identifier: MIT
// Each row of numbers is compared as one text, a blank between the results.
#include "base/mdlText.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <string>
#include <tuple>

namespace {

using namespace std::string_view_literals;
using vk::formatNumber;
using vk::textOf;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr float kTinySingle = std::numeric_limits<float>::denorm_min();
constexpr double kTinyDouble = std::numeric_limits<double>::denorm_min();

/// The values in that format; the empty format is the shortest text.
template <typename Number>
std::string formatted(std::string_view format, std::initializer_list<Number> values) {
  std::string all;
  for (const Number value : values) {
    all += (all.empty() ? "" : " ") + formatNumber(value, format);
    if (format.empty() && textOf(value) != formatNumber(value, format)) all += "!";
  }
  return all;
}

/// What is read of each text up to a '|': "x" for none, a "!" where the throwing form differs.
template <typename Number>
std::string readings(std::optional<Number> (*quiet)(std::string_view),
                     Number (*throwing)(std::string_view), std::string_view texts) {
  std::string all;
  for (bool more = true; more;) {
    const auto end = texts.find('|');
    const auto text = texts.substr(0, end);
    more = end != texts.npos;
    texts.remove_prefix(more ? end + 1 : 0);
    const auto value = quiet(text);
    all += (all.empty() ? "" : " ") + (value ? textOf(*value) : "x");
    try {
      if (throwing(text) != value) all += "!";
    } catch (const vk::TypeMismatch&) {
      if (value) all += "!";
    }
  }
  return all;
}

const auto wholes = [](auto texts) { return readings(vk::readWhole, vk::toWhole, texts); };
const auto singles = [](auto texts) { return readings(vk::readSingle, vk::toSingle, texts); };
const auto doubles = [](auto texts) { return readings(vk::readDouble, vk::toDouble, texts); };

// --- shortest texts ---------------------------------------------------------------------------

TEST(TextOf, Single) {
  EXPECT_EQ(formatted("", {0.0f, -0.0f, 1.0f, -0.5f, 0.1f + 0.2f, 1000.0f, -999999.0f, 58.291143f}),
            "0 0 1 -0.5 0.3 1000 -999999 58.29114");
  // Positional from -5 to 6; what rounds up to the limit is on its other side.
  EXPECT_EQ(formatted("", {0.00001f, 0.000009999999f, 0.00000999999999f, 0.000003f, 1.2345678e-5f}),
            "0.00001 9.999999E-06 0.00001 3E-06 0.00001234568");
  EXPECT_EQ(formatted("", {9999999.0f, 9999999.5f, 12345678.0f, 999999.94f, 1234567.5f}),
            "9999999 1E+07 1.234568E+07 999999.9 1234568");
  EXPECT_EQ(formatted("", {-FLT_MAX, FLT_MIN, kTinySingle, static_cast<float>(kNan)}),
            "-3.402823E+38 1.175494E-38 1.401298E-45 NaN");
}

TEST(TextOf, DoubleAndWhole) {
  EXPECT_EQ(formatted("", {0.0, -0.0, -12.5, 0.1 + 0.2, 1000.0 / 3 * 2, 1.0 / 200000, 0.00001}),
            "0 0 -12.5 0.3 666.666666666667 5E-06 0.00001");
  EXPECT_EQ(formatted("", {999999999999999.0, 999999999999999.5, 123456789012345678.0, 1e100}),
            "999999999999999 1E+15 1.23456789012346E+17 1E+100");
  EXPECT_EQ(formatted("", {DBL_MAX, kTinyDouble, kNan, kInfinity, -kInfinity}),
            "1.79769313486232E+308 4.94065645841247E-324 NaN Infinity -Infinity");
  EXPECT_EQ(formatted("", {0, INT32_MIN, INT32_MAX}), "0 -2147483648 2147483647");
  EXPECT_EQ(textOf(INT64_MIN), "-9223372036854775808");
}

/// Singles take a way of their own; the digits must be those of the C library all the same.
TEST(TextOf, SinglesHaveTheRightDigitsAtTheEdgesOfEveryDecade) {
  const auto check = [](float value) {
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.7g", static_cast<double>(value));
    ASSERT_EQ(vk::readDouble(textOf(value)), std::strtod(digits, nullptr)) << digits;
  };
  for (int power = -8; power <= 9; ++power) {
    auto value = static_cast<float>(std::pow(10.0, power));
    for (int i = 0; i < 40; ++i) value = std::nextafter(value, 0.0f);
    for (int i = 0; i < 80; ++i, value = std::nextafter(value, FLT_MAX)) check(value);
  }
  // Eight digits that end in 5: the tie is exact in binary.
  for (float value = 131072.0625f; value < 131074.0f; value += 0.125f) check(value);
  for (int raw = -32768; raw <= 32767; raw += 7) check(static_cast<float>(raw) * 0.0305185f);
}

// --- formats ----------------------------------------------------------------------------------

TEST(FormatNumber, Single) {
  EXPECT_EQ(formatted("#0.0", {-0.0f, -100.0f, -0.04f, -0.05f, -99.95f, -99.94f, FLT_MAX}),
            "0.0 -100.0 0.0 -0.1 -100.0 -99.9 340282300000000000000000000000000000000.0");
  EXPECT_EQ(formatted("+#0.0", {100.0f, 10.25f, 10.35f, 0.15f, 0.04f, -1.0f}),
            "+100.0 +10.3 +10.4 +0.2 +0.0 -+1.0");
  EXPECT_EQ(formatted("000", {-20.0f, 1000.0f, 0.0f}), "-020 1000 000");
  EXPECT_EQ(formatted("0.000000", {1.5f, 0.00001f, 58.29114f, 0.0000005f, 4.9e-7f, 9.9999999e-8f}),
            "1.500000 0.000010 58.291140 0.000001 0.000000 0.000000");
  EXPECT_EQ(formatted("##0.000", {0.6f, 1234.5f, 1.0005f}), "0.600 1234.500 1.001");
  EXPECT_EQ(formatted("0", {0.4f, 0.5f, 1.5f, 2.5f, -0.4f, -0.5f, 999999.9f}),
            "0 1 2 3 0 -1 1000000");
  EXPECT_EQ(formatted("0.000000E+00", {1.0f, -0.0f, 0.00001f, -58.29114f, FLT_MAX, kTinySingle}),
            "1.000000E+00 0.000000E+00 1.000000E-05 -5.829114E+01 3.402823E+38 1.401298E-45");
  EXPECT_EQ(formatted("0.0E+00", {123.456f, 9.96f}), "1.2E+02 1.0E+01");
  EXPECT_EQ(formatted("000.0E+00", {12345.0f}), "123.5E+02");
  EXPECT_EQ(formatted("0", {static_cast<float>(-kInfinity)}), "-Infinity");
}

TEST(FormatNumber, DoubleAndWhole) {
  EXPECT_EQ(formatted("0.#######", {11.0, 0.0, -1e-8, -0.5, 2.0 / 3, 1.99999999, 123456.7654321}),
            "11. 0. 0. -0.5 0.6666667 2. 123456.7654321");
  EXPECT_EQ(formatted("0.00", {2.675, 1.005, 0.045, 30.0}), "2.68 1.01 0.05 30.00");
  EXPECT_EQ(formatted("0.000000", {59.9999995, 12.345675}), "60.000000 12.345675");
  EXPECT_EQ(formatted("0", {123456789012345678.0, kNan, -kInfinity}),
            "123456789012346000 NaN -Infinity");
  EXPECT_EQ(formatted("0.0E+00", {DBL_MAX, 4.9e-324, 0.0}), "1.8E+308 4.9E-324 0.0E+00");
  EXPECT_EQ(formatted("0.0E-00", {15.0, 0.15}), "1.5E01 1.5E-01");
  EXPECT_EQ(formatted("#.0", {0.5, 0.0}), ".5 .0");
  EXPECT_EQ(formatted("#", {0.0}) + formatted("#00", {7.0}), "07");
  EXPECT_EQ(formatted("0.0#", {1.0, 1.25, 1.5}), "1.0 1.25 1.5");
  EXPECT_EQ(formatted("0 %", {-3.0}), "-3 %");
  EXPECT_EQ(formatted("0000000", {480123, 0, 16777217, -10}), "0480123 0000000 16777217 -0000010");
  EXPECT_EQ(formatted("+000", {10, 0, -20}), "+010 +000 -+020");
  EXPECT_EQ(formatted("0.0", {INT32_MIN}) + formatted("0.0E+00", {15}), "-2147483648.01.5E+01");
}

TEST(FormatText, RightJustifies) {
  EXPECT_EQ(vk::formatText("", "@@@") + "|" + vk::formatText("5.5", "@@@@@") + "|" +
                vk::formatText("1.234567", "@@@@@@@@") + "|" + vk::formatText("long", "@@") + "|" +
                vk::formatText("\xC2\xB5m", "@@@@") + "|" + vk::formatText("ab", ""),
            "   |  5.5|1.234567|long|  \xC2\xB5m|ab");
}

// --- text to number ---------------------------------------------------------------------------

TEST(Read, AcceptedAndRefusedForms) {
  const struct {
    std::string_view texts;
    const char* values;
  } rows[] = {
      {"0|-0|  12  |+12|-12.5|.5|5.|-.5|007", "0 0 12 12 -12.5 0.5 5 -0.5 7"},
      {"1,2|1,2,34.5|0,,|1,.5|1,E3", "12 1234.5 0 1.5 1000"},
      {"1e3|1.5E-03|5.E1|.5e1|1E003|1E+2", "1000 0.0015 50 5 1000 100"},
      {"1E-400|-1E-99999999999999999999|0E99999999999999999999|0.000E+999", "0 0 0 0"},
      {"0.0000000000000000000000000000000000000000000000001E+49", "1"},
      {"| |.|+|-|+-1|--1|1 2|- 1|*|$1|1-|1.2.3", "x x x x x x x x x x x x x"},
      {",|,1|-,1|0.1,0.2|1.,|.5,|1E5,|\xEF\xBC\x91", "x x x x x x x x"},
      {"0x10|&H10|1%|1F|1D5|nan|inf|NaN|Infinity", "x x x x x x x x x"},
      {"1\r\n|1\n|\t1|1\t|1\0|1\0002"sv, "x x x x x x"},
      {"1E|1E+|E5|.E5|1E5.5|1E 5|1E99999999999999999999|1e400|-1e400", "x x x x x x x x x"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(singles(row.texts), row.values) << row.texts;
    EXPECT_EQ(doubles(row.texts), row.values) << row.texts;
  }
  EXPECT_EQ(wholes("x|1 2|,1|1E5,|1\n|nan|"), "x x x x x x x");
}

TEST(Read, WholeTakesTiesToTheEvenNeighbour) {
  EXPECT_EQ(wholes("0.5|1.5|2.5|-0.5|-1.5|-2.5|2.500001|1E3|16777217|1,2"),
            "0 2 2 0 -2 -2 3 1000 16777217 12");
  EXPECT_EQ(wholes("2147483647.4|2147483647.5|-2147483648.5|-2147483649|1E10|1E300"),
            "2147483647 x -2147483648 x x x");
  std::string rounded;
  for (const double value : {0.5, 1.5, -2.5, 49 / 5.0, 2147483647.49, -2147483648.5}) {
    rounded += textOf(vk::roundWhole(value)) + " ";
  }
  EXPECT_EQ(rounded, "0 2 -2 10 2147483647 -2147483648 ");
  for (const double value : {2147483647.5, -2147483649.0, 1e300, kNan, kInfinity, -kInfinity}) {
    EXPECT_THROW(std::ignore = vk::roundWhole(value), vk::TypeMismatch) << value;
  }
}

TEST(Read, RoundsOnceAndDoesNotOverflow) {
  EXPECT_EQ(singles("3.4028235E+38|-3.4028235E+38|3.5E+38|1E+39|1E+300|1.401298E-45|1E-46|-1E-300"),
            "3.402823E+38 -3.402823E+38 x x x 1.401298E-45 0 0");
  EXPECT_EQ(vk::readSingle("0.1"), 0.1f);
  // Rounding to a double first and then to a single would give the neighbour below.
  EXPECT_EQ(vk::readSingle("1.00000017881393432617187501"), 1.0000002384185791015625f);
  EXPECT_EQ(vk::readDouble("4.94065645841247E-324"), kTinyDouble);
  EXPECT_EQ(vk::readDouble("1.7976931348623157E+308"), DBL_MAX);
}

TEST(Read, LongTexts) {
  const std::string zeros(100000, '0');
  EXPECT_EQ(doubles("0." + zeros + "1E+100001|1" + zeros + "E-100000|1" + zeros), "1 1 x");
  EXPECT_EQ(
      wholes(zeros + "12|1" + std::string(100000, ',') + "|" + std::string(100000, ' ') + "3"),
      "12 1 3");
}

// --- pieces of text ---------------------------------------------------------------------------

TEST(Pieces, SlicesGiveWhatIsThere) {
  const auto mids = vk::mid("abcdef", 0, 2) + "|" + vk::mid("abcdef", 1, 2) + "|" +
                    vk::mid("abcdef", 5, 9) + "|" + vk::mid("abcdef", 6) + "|" +
                    vk::mid("abcdef", 7) + "|" + vk::mid("abcdef", 99, 3) + "|" + vk::mid("", 1, 1);
  EXPECT_EQ(mids, "ab|ab|ef|f|||");
  const auto ends = vk::left("abc", 2) + "|" + vk::left("abc", 9) + "|" + vk::left("abc", 0) + "|" +
                    vk::right("abc", 2) + "|" + vk::right("abc", 9) + "|" + vk::right("abc", 0);
  EXPECT_EQ(ends, "ab|abc||bc|abc|");
  EXPECT_EQ(vk::trim("  a b  ") + vk::trim("   ") + vk::trim(" \ta\r\n "), "a b\ta\r\n");
}

TEST(Pieces, Searching) {
  EXPECT_EQ(vk::positionOf("ERR,10", "ERR"), 1u);
  EXPECT_EQ(vk::positionOf("xxEND", "END"), 3u);
  EXPECT_EQ(vk::positionOf("", "END"), 0u);
  EXPECT_TRUE(vk::contains("xENDx", "END") && !vk::contains("xEnDx", "END"));
  EXPECT_TRUE(vk::equalNoCase("Hed", "hEd") && !vk::equalNoCase("hed", "he"));
  EXPECT_FALSE(vk::equalNoCase("\xC3\x84", "\xC3\xA4") || vk::equalNoCase("[", "{"));
}

}  // namespace
