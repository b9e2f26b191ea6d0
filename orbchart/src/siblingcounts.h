// How many children of each name the open elements of a scan have had so far.
#pragma once

#include "chartscan.h"

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace orbchart {

class SiblingCounts {
public:
  void open() { open_.emplace_back(); }
  void close();

  /// The count of children that the language has in the last open element, by their place in the language; 0 each at
  /// the beginning. It stays where it is until the next call.
  std::uint32_t& of(const LanguageElement& parent, const LanguageChild& child);
  /// The same for children of other names, which have to stay where they are.
  std::uint32_t& of(TextView otherName);

private:
  struct Open {
    /// Where the counts of the language's children begin, and one more; 0 while there are none.
    std::size_t begin = 0;
    std::unique_ptr<std::unordered_map<TextView, std::uint32_t>> others;
  };

  std::vector<Open> open_;
  std::vector<std::uint32_t> counts_;
};

inline void SiblingCounts::close() {
  if (open_.back().begin != 0)
    counts_.resize(open_.back().begin - 1);
  open_.pop_back();
}

inline std::uint32_t& SiblingCounts::of(const LanguageElement& parent, const LanguageChild& child) {
  std::size_t& begin = open_.back().begin;
  if (begin == 0) {
    begin = counts_.size() + 1;
    counts_.resize(counts_.size() + parent.children.size());
  }
  return counts_[begin - 1 + static_cast<std::size_t>(&child - parent.children.data())];
}

inline std::uint32_t& SiblingCounts::of(TextView otherName) {
  auto& others = open_.back().others;
  if (others == nullptr)
    others = std::make_unique<std::unordered_map<TextView, std::uint32_t>>();
  return (*others)[otherName];
}

} // namespace orbchart
