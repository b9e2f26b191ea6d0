// The unit of the graph algebra.
#include "orbunity.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbUnity>() {
  return elementDescription<OrbUnity, Attributes>;
}

OrbUnity::OrbUnity(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbUnity::~OrbUnity() = default;

const XMLCh* OrbUnity::getId() const { return id.get(*this); }
void OrbUnity::setId(const XMLCh* value) { id.set(*this, value); }
void OrbUnity::removeId() { id.remove(*this); }
