// What hides nodes without links in a graph layout.
#include "orbhidesinglenodes.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Boolean whenEdgesHidden{OrbHideSingleNodes::_UTF_whenEdgesHidden};

using Attributes = AttributeList<id, whenEdgesHidden>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbHideSingleNodes>() {
  return elementDescription<OrbHideSingleNodes, Attributes>;
}

OrbHideSingleNodes::OrbHideSingleNodes(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbHideSingleNodes::~OrbHideSingleNodes() = default;

const XMLCh* OrbHideSingleNodes::getId() const { return id.get(*this); }
void OrbHideSingleNodes::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbHideSingleNodes::isIdPresent() const { return id.isPresent(*this); }
void OrbHideSingleNodes::removeId() { id.remove(*this); }

bool OrbHideSingleNodes::getWhenEdgesHidden() const { return whenEdgesHidden.get(*this); }
void OrbHideSingleNodes::setWhenEdgesHidden(bool value) { whenEdgesHidden.set(*this, value); }
bool OrbHideSingleNodes::isWhenEdgesHiddenPresent() const { return whenEdgesHidden.isPresent(*this); }
void OrbHideSingleNodes::removeWhenEdgesHidden() { whenEdgesHidden.remove(*this); }
