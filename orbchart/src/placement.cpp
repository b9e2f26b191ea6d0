// Where a new child element goes among its siblings.
#include "placement.h"

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMException.hpp>

#include <algorithm>

using xercesc::DOMElement;
using xercesc::DOMException;
using xercesc::DOMNode;

namespace orbchart {
namespace {

/// How many siblings are looked at before a node is asked for its parent, which costs more.
constexpr int few = 4;

/// Whether a node is one of the few siblings after another.
bool followsClosely(const DOMNode* node, const DOMNode* other) {
  for (int step = 0; other != nullptr && step < few; ++step) {
    other = other->getNextSibling();
    if (other == node)
      return true;
  }
  return false;
}

/// The one of two siblings that comes first, searched from both of them and from a sibling ahead of them at once.
DOMNode* earlier(DOMNode* one, DOMNode* other, DOMNode* front) {
  const DOMNode* afterOne = one;
  const DOMNode* afterOther = other;
  for (; front != one && front != other; front = front->getNextSibling()) {
    afterOne = afterOne->getNextSibling();
    afterOther = afterOther->getNextSibling();
    if (afterOne == other || afterOther == nullptr)
      return one;
    if (afterOther == one || afterOne == nullptr)
      return other;
  }
  return front;
}

/// The first of the parent's children that is one of the followers; null when none is.
DOMNode* firstAmong(const DOMElement& parent, DOMNode* const* followers, std::size_t count) {
  DOMNode* const* const end = followers + count;
  if (std::all_of(followers, end, [](const DOMNode* follower) { return follower == nullptr; }))
    return nullptr;
  DOMNode* front = parent.getFirstChild();
  for (int step = 0; front != nullptr && step < few; ++step, front = front->getNextSibling()) {
    if (std::find(followers, end, front) != end)
      return front;
  }
  if (front == nullptr)
    return nullptr;
  DOMNode* first = nullptr;
  for (DOMNode* const* follower = followers; follower != end; ++follower) {
    if (*follower == nullptr || *follower == first || followsClosely(*follower, first))
      continue;
    if ((*follower)->getParentNode() == &parent)
      first = first == nullptr ? *follower : earlier(first, *follower, front);
  }
  return first;
}

/// The one follower that is not null; null when there is none, or another.
DOMNode* onlyOne(DOMNode* const* followers, std::size_t count) {
  DOMNode* only = nullptr;
  for (DOMNode* const* follower = followers; follower != followers + count; ++follower) {
    if (*follower == nullptr || *follower == only)
      continue;
    if (only != nullptr)
      return nullptr;
    only = *follower;
  }
  return only;
}

/// False when the follower is no child of the parent: Xerces looks at that itself.
bool insertedBefore(DOMElement& parent, DOMElement& child, DOMNode* follower) {
  try {
    parent.insertBefore(&child, follower);
    return true;
  } catch (const DOMException& exception) {
    if (exception.code != DOMException::NOT_FOUND_ERR)
      throw;
    return false;
  }
}

} // namespace

void insertBeforeFirst(DOMElement& parent, DOMElement& child, DOMNode* const* followers, std::size_t count) {
  DOMNode* only = onlyOne(followers, count);
  if (only == nullptr || !insertedBefore(parent, child, only))
    parent.insertBefore(&child, firstAmong(parent, followers, count));
}

} // namespace orbchart
