// The word that a misspelt one was meant to be.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orbchart {

/// How many steps lead from one word to another: a letter left out, put in, changed, or exchanged with its neighbour.
/// Case costs nothing. More steps than the most that are asked for count as one more than that.
unsigned int distanceBetween(std::string_view one, std::string_view other, unsigned int most);

/// The nearest of some words, the first among equals; empty when none is near for the length of the misspelt one.
std::string nearestWord(std::string_view misspelt, const std::vector<std::string>& words);

} // namespace orbchart
