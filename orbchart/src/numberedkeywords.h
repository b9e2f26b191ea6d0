// Keyword tables from one list of keywords, which several enumerations number each in its own way.
#pragma once

#include "keyword.h"

#include <iterator>

namespace orbchart {

/// The keyword table of an enumeration that takes a list from its beginning, by its first and its last number.
template <const auto& list, auto first, auto last> struct NumberedKeywords {
  static_assert(last - first < std::ssize(list));

  constexpr NumberedKeywords() {
    for (int index = 0; index <= last - first; ++index)
      table[index] = {static_cast<decltype(first)>(first + index), list[index]};
  }

  Keyword<decltype(first)> table[last - first + 1] = {};
};
template <const auto& list, auto first, auto last> inline constexpr NumberedKeywords<list, first, last> numbered;

} // namespace orbchart
