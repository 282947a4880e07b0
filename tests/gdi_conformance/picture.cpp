#include "picture.h"

#include <charconv>
#include <sstream>
#include <stdexcept>

namespace vorlex::gdi_conformance {
namespace {

int ParseInt(std::string_view text) {
  int value = 0;
  const char* end = text.data() + text.size();
  auto [ptr, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || ptr != end) throw std::invalid_argument("bad number in spans: " + std::string(text));
  return value;
}

char LetterOf(uint32_t pixel, const std::vector<Ink>& inks) {
  for (const Ink& ink : inks) {
    if (ink.pixel == pixel) return ink.letter;
  }
  return '?';
}

uint32_t PixelOf(char letter, const std::vector<Ink>& inks) {
  for (const Ink& ink : inks) {
    if (ink.letter == letter) return ink.pixel;
  }
  throw std::invalid_argument(std::string("no ink for letter ") + letter);
}

std::string ColumnRuler(const gdi::RECT& area) {
  std::string ruler = "     ";
  for (int x = area.left; x < area.right; ++x) ruler += static_cast<char>('0' + ((x % 10) + 10) % 10);
  return ruler;
}

}  // namespace

std::vector<Point> SpanPoints(std::string_view spans, int dx, int dy) {
  std::vector<Point> points;
  size_t pos = 0;
  while (pos < spans.size()) {
    if (spans[pos] == ' ') {
      ++pos;
      continue;
    }
    size_t end = spans.find(' ', pos);
    if (end == std::string_view::npos) end = spans.size();
    const std::string_view row = spans.substr(pos, end - pos);
    pos = end;
    const size_t colon = row.find(':');
    if (colon == std::string_view::npos) throw std::invalid_argument("row without ':' in spans");
    const int y = ParseInt(row.substr(0, colon));
    std::string_view ranges = row.substr(colon + 1);
    while (!ranges.empty()) {
      size_t comma = ranges.find(',');
      if (comma == std::string_view::npos) comma = ranges.size();
      const std::string_view range = ranges.substr(0, comma);
      ranges = comma < ranges.size() ? ranges.substr(comma + 1) : std::string_view();
      const size_t dots = range.find("..");
      const int x0 = ParseInt(range.substr(0, dots));
      const int x1 = dots == std::string_view::npos ? x0 : ParseInt(range.substr(dots + 2));
      for (int x = x0; x <= x1; ++x) points.push_back({x + dx, y + dy});
    }
  }
  return points;
}

Picture::Picture(const gdi::RECT& area, char letter)
    : area_(area), rows_(static_cast<size_t>(area.bottom - area.top), std::string(area.right - area.left, letter)) {}

Picture::Picture(int left, int top, const std::vector<std::string>& rows) : rows_(rows) {
  const size_t width = rows.empty() ? 0 : rows.front().size();
  for (const std::string& row : rows) {
    if (row.size() != width) throw std::invalid_argument("picture rows of different lengths");
  }
  area_ = {left, top, left + static_cast<int>(width), top + static_cast<int>(rows.size())};
}

bool Picture::Contains(int x, int y) const {
  return x >= area_.left && x < area_.right && y >= area_.top && y < area_.bottom;
}

char Picture::At(int x, int y) const {
  return rows_[static_cast<size_t>(y - area_.top)][static_cast<size_t>(x - area_.left)];
}

void Picture::Set(int x, int y, char letter) {
  if (!Contains(x, y)) throw std::out_of_range("painted pixel outside the picture");
  rows_[static_cast<size_t>(y - area_.top)][static_cast<size_t>(x - area_.left)] = letter;
}

Picture& Picture::Paint(std::string_view spans, char letter, int dx, int dy) {
  for (const Point& p : SpanPoints(spans, dx, dy)) Set(p.x, p.y, letter);
  return *this;
}

Picture& Picture::Paint(const gdi::RECT& rect, char letter) {
  for (int y = rect.top; y < rect.bottom; ++y) {
    for (int x = rect.left; x < rect.right; ++x) Set(x, y, letter);
  }
  return *this;
}

Picture& Picture::Paint(const Picture& source) {
  for (int y = source.area_.top; y < source.area_.bottom; ++y) {
    for (int x = source.area_.left; x < source.area_.right; ++x) {
      if (source.At(x, y) != '?') Set(x, y, source.At(x, y));
    }
  }
  return *this;
}

std::string Map(const gdi::Pixels& pixels, const gdi::RECT& area, const std::vector<Ink>& inks) {
  std::ostringstream out;
  out << ColumnRuler(area) << '\n';
  for (int y = area.top; y < area.bottom; ++y) {
    out << (y < 10 && y >= 0 ? "   " : "  ") << y << ' ';
    for (int x = area.left; x < area.right; ++x) {
      const bool inside = x >= 0 && y >= 0 && x < pixels.width && y < pixels.height;
      out << (inside ? LetterOf(pixels.At(x, y), inks) : ' ');
    }
    out << '\n';
  }
  return out.str();
}

::testing::AssertionResult Shows(const gdi::Pixels& pixels, const Picture& expected, const std::vector<Ink>& inks) {
  const gdi::RECT& area = expected.area();
  if (area.left < 0 || area.top < 0 || area.right > pixels.width || area.bottom > pixels.height) {
    return ::testing::AssertionFailure() << "the picture's area lies outside the " << pixels.width << "x"
                                         << pixels.height << " bitmap";
  }
  int wrong = 0;
  std::ostringstream first;
  for (int y = area.top; y < area.bottom; ++y) {
    for (int x = area.left; x < area.right; ++x) {
      const uint32_t want = PixelOf(expected.At(x, y), inks);
      const uint32_t got = pixels.At(x, y);
      if (want == got) continue;
      if (wrong == 0) {
        first << "first difference at (" << x << "," << y << "): expected 0x" << std::hex << want << ", read 0x" << got
              << std::dec;
      }
      ++wrong;
    }
  }
  if (wrong == 0) return ::testing::AssertionSuccess();
  std::ostringstream message;
  message << wrong << " pixel(s) differ; " << first.str() << "\nexpected:\n" << ColumnRuler(area) << '\n';
  for (int y = area.top; y < area.bottom; ++y) {
    message << (y < 10 && y >= 0 ? "   " : "  ") << y << ' ';
    for (int x = area.left; x < area.right; ++x) message << expected.At(x, y);
    message << '\n';
  }
  message << "read:\n" << Map(pixels, area, inks);
  message << "inks:";
  for (const Ink& ink : inks) message << ' ' << ink.letter << "=0x" << std::hex << ink.pixel << std::dec;
  return ::testing::AssertionFailure() << message.str();
}

}  // namespace vorlex::gdi_conformance
