// Texts of a document that outlive their event, each kept once and known by a number.
#pragma once

#include "language.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory_resource>
#include <vector>

namespace orbchart {

/// Texts under numbers, from 0 up. A look-up takes the same time however many there are, and whoever chose them: the
/// hash is another one in each pool.
class TextPool {
public:
  TextPool();
  TextPool(const TextPool&) = delete;
  TextPool& operator=(const TextPool&) = delete;
  ~TextPool() = default;

  /// The number of a text, a new one for a text that was not there.
  std::uint32_t numberOf(TextView text);
  /// The text of a number. It stays where it is for as long as the pool.
  TextView operator[](std::uint32_t number) const { return entries_[number].text; }
  std::size_t size() const { return entries_.size(); }

private:
  struct Entry {
    TextView text;
    std::uint64_t hash;
  };

  std::uint64_t hashOf(TextView text) const;
  std::size_t slotOf(TextView text, std::uint64_t hash) const;
  void grow();

  std::uint64_t base_;
  std::pmr::monotonic_buffer_resource memory_;
  std::pmr::deque<Entry> entries_{&memory_};
  /// For each slot the number that lies there and one more; 0 for none. There are always more slots than texts.
  std::vector<std::uint32_t> slots_;
};

} // namespace orbchart
