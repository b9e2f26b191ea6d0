// Numbers to text by the value formatter, beside the C library and grouping by hand.
#include "support.h"

using bench::seconds;

namespace {

constexpr unsigned int manyNumbers = 1'000'000;
constexpr int decimals = 2;
constexpr int width = 16;
const std::string comma = ",";

/// Numbers of one to nine digits before the decimal mark, of both signs.
double numberOf(unsigned int index) {
  const double number = static_cast<double>(index) * 7919.37 / static_cast<double>(1 + index % 1000);
  return index % 3 == 0 ? -number : number;
}

std::string formatted(double number) {
  OBS value;
  value.number = number;
  return formatter::formattedValue(&value, QUVA_Format::number, width, decimals, &comma);
}

std::string formattedByHand(double number) {
  char text[64];
  const int length = std::snprintf(text, sizeof text, "%.*f", decimals, number);
  std::string grouped(text, static_cast<std::size_t>(length));
  const std::size_t first = number < 0 ? 1 : 0;
  for (std::size_t at = grouped.size() - decimals - 1; at > first + 3;) {
    at -= 3;
    grouped.insert(at, comma);
  }
  return grouped;
}

template <class Format> double timeOf(Format format) {
  std::size_t length = 0;
  const double time = seconds([&] {
    for (unsigned int index = 0; index < manyNumbers; ++index)
      length += format(numberOf(index)).size();
  });
  benchmark::DoNotOptimize(length);
  return time;
}

void requireSameTexts() {
  for (unsigned int index = 0; index < manyNumbers; ++index) {
    if (formatted(numberOf(index)) != formattedByHand(numberOf(index)))
      throw std::logic_error("the two sides write different texts: " + formatted(numberOf(index)));
  }
}

} // namespace

int main(int argc, char** argv) {
  requireSameTexts();
  bench::compareTimes(
      "1,000,000 numbers to text by the value formatter, grouped", "`snprintf` and grouping by hand", 1.3, 9,
      [] { return timeOf(formatted); }, [] { return timeOf(formattedByHand); });
  return bench::run(argc, argv);
}
