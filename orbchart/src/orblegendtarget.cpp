// One thing that a legend explains.
#include "orblegendtarget.h"

#include "attribute.h"
#include "chartstring.h"
#include "loading.h"
#include "modifierreference.h"
#include "orbcategoricaldomain.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "raise.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr AnyReference target{OrbUni::_target};
constexpr ReferenceTo<OrbBaseElement, OrbIntervalDomain, OrbCategoricalDomain> domain{OrbUni::_domain};
// The C library has a function `link`.
constexpr Text linkAttribute{OrbUni::_link};
constexpr ModifierReference domainModifier{OrbLegendTarget::_UTF_domainModifier};

using Attributes = AttributeList<id, target, domain, linkAttribute, domainModifier>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLegendTarget>() {
  return elementDescription<OrbLegendTarget, Attributes>;
}

OrbLegendTarget::OrbLegendTarget(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbLegendTarget::OrbLegendTarget(DOMElement* element, const XMLCh* id, const OrbBaseElement& target) :
    OrbLegendTarget(element) {
  setId(id);
  setTarget(target);
}
OrbLegendTarget::~OrbLegendTarget() = default;

const XMLCh* OrbLegendTarget::getId() const { return id.get(*this); }
void OrbLegendTarget::setId(const XMLCh* value) { id.set(*this, value); }
void OrbLegendTarget::removeId() { id.remove(*this); }

DOMElement* OrbLegendTarget::getTarget() const { return target.get(*this); }
void OrbLegendTarget::setTarget(const OrbBaseElement& newTarget) { target.set(*this, newTarget); }
void OrbLegendTarget::removeTarget() { target.remove(*this); }

// It raises for an element of another class too, with the words for one that does not exist.
OrbBaseElement* OrbLegendTarget::getDomain() const {
  OrbBaseElement* found = domain.get(*this);
  if (found == nullptr)
    raise("Attribute Domain refers to " + ChartString(GetAttribute(domain.name)).toUTF8() +
          ", but that element does not exist.");
  return found;
}
void OrbLegendTarget::setDomain(const OrbIntervalDomain& target) { domain.set(*this, target); }
void OrbLegendTarget::setDomain(const OrbCategoricalDomain& target) { domain.set(*this, target); }
void OrbLegendTarget::removeDomain() { domain.remove(*this); }

const XMLCh* OrbLegendTarget::getLink() const { return linkAttribute.get(*this); }
void OrbLegendTarget::setLink(const XMLCh* value) { linkAttribute.set(*this, value); }
void OrbLegendTarget::removeLink() { linkAttribute.remove(*this); }

CTModifier* OrbLegendTarget::getDomainModifier() const { return domainModifier.get(*this); }
void OrbLegendTarget::setDomainModifier(const CTModifier& target) { domainModifier.setAmong(*this, target); }
bool OrbLegendTarget::isDomainModifierPresent() const { return domainModifier.isPresent(*this); }
void OrbLegendTarget::removeDomainModifier() { domainModifier.remove(*this); }
