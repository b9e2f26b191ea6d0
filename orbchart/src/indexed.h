// One of some things by its index, as hosts ask for it.
#pragma once

#include "raise.h"

#include <cstddef>
#include <string>

namespace orbchart {

/// Raises for an index that is too great, with the word for such a thing.
template <class Things> const auto& at(const Things& things, std::size_t index, const char* word) {
  if (index >= things.size())
    raise(std::string("No ") + word + " has the index " + std::to_string(index) + ": their number is " +
          std::to_string(things.size()) + ".");
  return things[index];
}

} // namespace orbchart
