// Where a new child element goes among its siblings.
#include "placement.h"

#include <xercesc/dom/DOMElement.hpp>

#include <algorithm>

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace orbchart {
namespace {

/// The first of the parent's children that is one of the followers; null when none is.
DOMNode* firstAmong(const DOMElement& parent, DOMNode* const* followers, std::size_t count) {
  DOMNode* only = nullptr;
  std::size_t here = 0;
  bool several = false;
  for (DOMNode* const* follower = followers; follower != followers + count; ++follower) {
    if (*follower == nullptr || (*follower)->getParentNode() != &parent)
      continue;
    several = several || (only != nullptr && only != *follower);
    only = *follower;
    ++here;
  }
  if (!several)
    return only;
  // All of them lie between the two ends: from the front the first one met is the answer, from the back the last one.
  const auto entries = [=](const DOMNode* node) {
    return static_cast<std::size_t>(std::count(followers, followers + count, node));
  };
  DOMNode* front = parent.getFirstChild();
  DOMNode* back = parent.getLastChild();
  for (;;) {
    if (entries(front) != 0)
      return front;
    here -= entries(back);
    if (here == 0)
      return back;
    front = front->getNextSibling();
    back = back->getPreviousSibling();
  }
}

} // namespace

void insertBeforeFirst(DOMElement& parent, DOMElement& child, DOMNode* const* followers, std::size_t count) {
  parent.insertBefore(&child, firstAmong(parent, followers, count));
}

} // namespace orbchart
