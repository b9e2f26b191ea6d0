// Maps a value onto a dash pattern.
#include "orbdashmapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text from{OrbUni::_from};
constexpr Text to{OrbUni::_to};

using Attributes = AttributeList<id, from, to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDashMapping>() {
  return elementDescription<OrbDashMapping, Attributes>;
}

OrbDashMapping::OrbDashMapping(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbDashMapping::OrbDashMapping(xercesc::DOMElement* element, const XMLCh* from, const XMLCh* to) :
    OrbDashMapping(element) {
  setFrom(from);
  setTo(to);
}
OrbDashMapping::~OrbDashMapping() = default;

const XMLCh* OrbDashMapping::getId() const { return id.get(*this); }
void OrbDashMapping::setId(const XMLCh* value) { id.set(*this, value); }
void OrbDashMapping::removeId() { id.remove(*this); }

const XMLCh* OrbDashMapping::getFrom() const { return from.get(*this); }
void OrbDashMapping::setFrom(const XMLCh* value) { from.set(*this, value); }
void OrbDashMapping::removeFrom() { from.remove(*this); }

const XMLCh* OrbDashMapping::getTo() const { return to.get(*this); }
void OrbDashMapping::setTo(const XMLCh* value) { to.set(*this, value); }
void OrbDashMapping::removeTo() { to.remove(*this); }
