// Where a new child element goes among its siblings.
#include "placement.h"

#include <xercesc/dom/DOMElement.hpp>

#include <algorithm>

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace orbchart {
namespace {

/// Looking at a child is cheap, where asking a follower for its parent is not.
constexpr int nearTheFront = 4;

/// The one of two siblings that comes first, searched from both of them and from a sibling ahead of them at once.
DOMNode* earlier(DOMNode* one, DOMNode* other, DOMNode* ahead) {
  const DOMNode* afterOne = one;
  const DOMNode* afterOther = other;
  for (; ahead != one && ahead != other; ahead = ahead->getNextSibling()) {
    afterOne = afterOne->getNextSibling();
    afterOther = afterOther->getNextSibling();
    if (afterOne == other || afterOther == nullptr)
      return one;
    if (afterOther == one || afterOne == nullptr)
      return other;
  }
  return ahead;
}

/// The first of the parent's children that is one of the followers; null when none is.
DOMNode* firstAmong(const DOMElement& parent, DOMNode* const* followers, std::size_t count) {
  DOMNode* const* const end = followers + count;
  if (std::all_of(followers, end, [](const DOMNode* follower) { return follower == nullptr; }))
    return nullptr;
  DOMNode* front = parent.getFirstChild();
  for (int step = 0; front != nullptr && step < nearTheFront; ++step, front = front->getNextSibling()) {
    if (std::find(followers, end, front) != end)
      return front;
  }
  DOMNode* first = nullptr;
  for (DOMNode* const* follower = followers; front != nullptr && follower != end; ++follower) {
    if (*follower == nullptr || *follower == first || (*follower)->getParentNode() != &parent)
      continue;
    first = first == nullptr ? *follower : earlier(first, *follower, front);
  }
  return first;
}

} // namespace

void insertBeforeFirst(DOMElement& parent, DOMElement& child, DOMNode* const* followers, std::size_t count) {
  parent.insertBefore(&child, firstAmong(parent, followers, count));
}

} // namespace orbchart
