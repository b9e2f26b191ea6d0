// Texts of a document that outlive their event.
#include "textpool.h"

#include <algorithm>
#include <random>

namespace orbchart {
namespace {

/// A Mersenne prime: the polynomial of a text modulo it, at a point that nobody can foresee, is a hash for which no
/// document can be made that is slow.
constexpr std::uint64_t prime = (std::uint64_t{1} << 61U) - 1;

std::uint64_t productModuloPrime(std::uint64_t one, std::uint64_t other) {
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(one) * other;
  const std::uint64_t sum = static_cast<std::uint64_t>(product & prime) + static_cast<std::uint64_t>(product >> 61U);
  return sum >= prime ? sum - prime : sum;
}

constexpr std::size_t fewestSlots = 64;

} // namespace

TextPool::TextPool() : slots_(fewestSlots) {
  std::random_device random;
  base_ = ((std::uint64_t{random()} << 32U) | random()) % (prime - 1) + 1;
}

std::uint64_t TextPool::hashOf(TextView text) const {
  std::uint64_t hash = text.size();
  for (const XMLCh unit : text)
    hash = productModuloPrime(hash, base_) + unit + 1;
  return hash;
}

/// The slot of a text, or the empty one where it belongs.
std::size_t TextPool::slotOf(TextView text, std::uint64_t hash) const {
  std::size_t slot = hash & (slots_.size() - 1);
  while (slots_[slot] != 0) {
    const Entry& entry = entries_[slots_[slot] - 1];
    if (entry.hash == hash && entry.text == text)
      break;
    slot = (slot + 1) & (slots_.size() - 1);
  }
  return slot;
}

std::uint32_t TextPool::numberOf(TextView text) {
  const std::uint64_t hash = hashOf(text);
  std::size_t slot = slotOf(text, hash);
  if (slots_[slot] != 0)
    return slots_[slot] - 1;
  if (entries_.size() * 2 >= slots_.size()) {
    grow();
    slot = slotOf(text, hash);
  }
  auto* copy = static_cast<XMLCh*>(memory_.allocate((text.size() + 1) * sizeof(XMLCh), alignof(XMLCh)));
  std::copy(text.begin(), text.end(), copy);
  entries_.push_back({{copy, text.size()}, hash});
  slots_[slot] = static_cast<std::uint32_t>(entries_.size());
  return slots_[slot] - 1;
}

void TextPool::grow() {
  std::vector<std::uint32_t> old(slots_.size() * 2);
  old.swap(slots_);
  for (const std::uint32_t number : old) {
    if (number != 0)
      slots_[slotOf(entries_[number - 1].text, entries_[number - 1].hash)] = number;
  }
}

} // namespace orbchart
