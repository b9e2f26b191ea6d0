// A node of a graph layout with a place of its own.
#include "orbfixednode.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text node{OrbFixedNode::_UTF_node};
constexpr Double x{OrbUni::_x};
constexpr Double y{OrbUni::_y};

using Attributes = AttributeList<id, node, x, y>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFixedNode>() {
  return elementDescription<OrbFixedNode, Attributes>;
}

OrbFixedNode::OrbFixedNode(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbFixedNode::~OrbFixedNode() = default;

const XMLCh* OrbFixedNode::getId() const { return id.get(*this); }
void OrbFixedNode::setId(const XMLCh* value) { id.set(*this, value); }
void OrbFixedNode::removeId() { id.remove(*this); }

const XMLCh* OrbFixedNode::getNode() const { return node.get(*this); }
void OrbFixedNode::setNode(const XMLCh* value) { node.set(*this, value); }
void OrbFixedNode::removeNode() { node.remove(*this); }

double OrbFixedNode::getX() const { return x.get(*this); }
void OrbFixedNode::setX(double value) { x.set(*this, value); }
void OrbFixedNode::removeX() { x.remove(*this); }

double OrbFixedNode::getY() const { return y.get(*this); }
void OrbFixedNode::setY(double value) { y.set(*this, value); }
void OrbFixedNode::removeY() { y.remove(*this); }
