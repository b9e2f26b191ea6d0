// A factor that scales values into units.
#include "orbunitrule.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text prefix{OrbUni::_prefix};
constexpr Text suffix{OrbUni::_suffix};
constexpr Double factor{OrbUni::_factor};

using Attributes = AttributeList<id, prefix, suffix, factor>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbUnitRule>() {
  return elementDescription<OrbUnitRule, Attributes>;
}

OrbUnitRule::OrbUnitRule(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbUnitRule::OrbUnitRule(xercesc::DOMElement* element, double factor) : OrbUnitRule(element) { setFactor(factor); }
OrbUnitRule::~OrbUnitRule() = default;

const XMLCh* OrbUnitRule::getId() const { return id.get(*this); }
void OrbUnitRule::setId(const XMLCh* value) { id.set(*this, value); }
void OrbUnitRule::removeId() { id.remove(*this); }

const XMLCh* OrbUnitRule::getPrefix() const { return prefix.get(*this); }
void OrbUnitRule::setPrefix(const XMLCh* value) { prefix.set(*this, value); }
void OrbUnitRule::removePrefix() { prefix.remove(*this); }

const XMLCh* OrbUnitRule::getSuffix() const { return suffix.get(*this); }
void OrbUnitRule::setSuffix(const XMLCh* value) { suffix.set(*this, value); }
void OrbUnitRule::removeSuffix() { suffix.remove(*this); }

double OrbUnitRule::getFactor() const { return factor.get(*this); }
void OrbUnitRule::setFactor(double value) { factor.set(*this, value); }
