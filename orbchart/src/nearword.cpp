// The word that a misspelt one was meant to be.
#include "nearword.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>

namespace orbchart {
namespace {

/// Longer texts are nobody's slip of the pen.
constexpr std::size_t longestWord = 64;

char lower(char letter) { return static_cast<char>(std::tolower(static_cast<unsigned char>(letter))); }

/// How many steps make a word of a length another one: a third of it, and no more than three.
unsigned int nearFor(std::size_t length) { return std::min(3U, static_cast<unsigned int>(length / 3)); }

/// Whether words that are some steps apart are near. Two letters exchanged are one step, and near in the shortest words
/// as well.
bool isNear(std::string_view misspelt, std::string_view word, unsigned int distance) {
  const auto sameLetter = [](char one, char other) { return lower(one) == lower(other); };
  return distance <= nearFor(misspelt.size()) ||
         (distance == 1 && std::is_permutation(misspelt.begin(), misspelt.end(), word.begin(), word.end(), sameLetter));
}

} // namespace

unsigned int distanceBetween(std::string_view one, std::string_view other, unsigned int most) {
  const std::size_t difference = one.size() > other.size() ? one.size() - other.size() : other.size() - one.size();
  if (difference > most || one.size() > longestWord || other.size() > longestWord)
    return most + 1;
  // The steps between the beginnings of both words, for the letters of one up to this, the last and the one before.
  using Row = std::array<unsigned int, longestWord + 1>;
  Row before{};
  Row last{};
  Row row{};
  for (std::size_t j = 0; j <= other.size(); ++j)
    row[j] = static_cast<unsigned int>(j);
  for (std::size_t i = 1; i <= one.size(); ++i) {
    before = last;
    last = row;
    row[0] = static_cast<unsigned int>(i);
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const char a = lower(one[i - 1]);
      const char b = lower(other[j - 1]);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a == b ? 0U : 1U)});
      if (i > 1 && j > 1 && a == lower(other[j - 2]) && lower(one[i - 2]) == b)
        row[j] = std::min(row[j], before[j - 2] + 1);
    }
  }
  return std::min(row[other.size()], most + 1);
}

std::string nearestWord(std::string_view misspelt, const std::vector<std::string>& words) {
  unsigned int nearest = std::max(1U, nearFor(misspelt.size())) + 1;
  std::string found;
  for (const std::string& word : words) {
    const unsigned int distance = distanceBetween(misspelt, word, nearest);
    if (distance < nearest && isNear(misspelt, word, distance)) {
      nearest = distance;
      found = word;
    }
  }
  return found;
}

} // namespace orbchart
