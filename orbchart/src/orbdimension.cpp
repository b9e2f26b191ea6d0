// One dimension of a coordinate system.
#include "orbdimension.h"

#include "attribute.h"
#include "family.h"
#include "modifierreference.h"
#include "orbcategoricaldomain.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

// What the language has after them has no class here.
using AfterScales = FamilyList<>;

} // namespace

struct OrbDimension::Children : ChildFamilies<FamilyList<OrbScale>> {};

OrbDimension::OrbDimension(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDimension::~OrbDimension() = default;

const XMLCh* OrbDimension::getId() const { return GetAttribute(OrbUni::_id); }
void OrbDimension::setId(const XMLCh* id) { writeId(*this, id); }
void OrbDimension::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbBaseElement* OrbDimension::getDomain() const {
  return readReferenceTo<OrbBaseElement, OrbIntervalDomain, OrbCategoricalDomain>(*this, OrbUni::_domain);
}
void OrbDimension::setDomain(const OrbIntervalDomain& domain) { writeReference(*this, OrbUni::_domain, domain); }
void OrbDimension::setDomain(const OrbCategoricalDomain& domain) { writeReference(*this, OrbUni::_domain, domain); }
void OrbDimension::removeDomain() { removeAttribute(*this, OrbUni::_domain); }

bool OrbDimension::getUnionDomain() const { return readBoolean(*this, OrbUni::_unionDomain); }
void OrbDimension::setUnionDomain(bool unionDomain) { writeBoolean(*this, OrbUni::_unionDomain, unionDomain); }
void OrbDimension::removeUnionDomain() { removeAttribute(*this, OrbUni::_unionDomain); }

bool OrbDimension::getNiceUpperMapping() const { return readBoolean(*this, OrbUni::_niceUpperMapping); }
void OrbDimension::setNiceUpperMapping(bool niceUpperMapping) {
  writeBoolean(*this, OrbUni::_niceUpperMapping, niceUpperMapping);
}
void OrbDimension::removeNiceUpperMapping() { removeAttribute(*this, OrbUni::_niceUpperMapping); }

bool OrbDimension::getNiceLowerMapping() const { return readBoolean(*this, OrbUni::_niceLowerMapping); }
void OrbDimension::setNiceLowerMapping(bool niceLowerMapping) {
  writeBoolean(*this, OrbUni::_niceLowerMapping, niceLowerMapping);
}
void OrbDimension::removeNiceLowerMapping() { removeAttribute(*this, OrbUni::_niceLowerMapping); }

const XMLCh* OrbDimension::getUpperMargin() const { return GetAttribute(OrbUni::_upperMargin); }
void OrbDimension::setUpperMargin(const XMLCh* upperMargin) { SetAttribute(OrbUni::_upperMargin, upperMargin); }
void OrbDimension::removeUpperMargin() { removeAttribute(*this, OrbUni::_upperMargin); }

const XMLCh* OrbDimension::getLowerMargin() const { return GetAttribute(OrbUni::_lowerMargin); }
void OrbDimension::setLowerMargin(const XMLCh* lowerMargin) { SetAttribute(OrbUni::_lowerMargin, lowerMargin); }
void OrbDimension::removeLowerMargin() { removeAttribute(*this, OrbUni::_lowerMargin); }

CTVariableType* OrbDimension::getClusterVariable() const { return readVariable(*this, OrbUni::_clusterVariable); }
void OrbDimension::setClusterVariable(const CTVariableType& variable) {
  writeReference(*this, OrbUni::_clusterVariable, variable);
}
void OrbDimension::removeClusterVariable() { removeAttribute(*this, OrbUni::_clusterVariable); }

const XMLCh* OrbDimension::getClusterGap() const { return GetAttribute(OrbUni::_clusterGap); }
void OrbDimension::setClusterGap(const XMLCh* clusterGap) { SetAttribute(OrbUni::_clusterGap, clusterGap); }
void OrbDimension::removeClusterGap() { removeAttribute(*this, OrbUni::_clusterGap); }

bool OrbDimension::getFacetsShareScale() const { return readBoolean(*this, _UTF_facetsShareScale); }
void OrbDimension::setFacetsShareScale(bool facetsShareScale) {
  writeBoolean(*this, _UTF_facetsShareScale, facetsShareScale);
}
bool OrbDimension::isFacetsShareScalePresent() const { return isPresent(*this, _UTF_facetsShareScale); }
void OrbDimension::removeFacetsShareScale() { removeAttribute(*this, _UTF_facetsShareScale); }

CTModifier* OrbDimension::getDomainModifier() const { return readModifier(*this, _UTF_domainModifier); }
void OrbDimension::setDomainModifier(const CTModifier& modifier) {
  writeModifier(*this, _UTF_domainModifier, modifier);
}
bool OrbDimension::isDomainModifierPresent() const { return isPresent(*this, _UTF_domainModifier); }
void OrbDimension::removeDomainModifier() { removeAttribute(*this, _UTF_domainModifier); }

OrbScale* OrbDimension::addScale(OrbScale::ENUM_method method) {
  return children_->add<OrbScale>(*this, OnlyOne("Scale", "Dimension"), AfterScales{}, method);
}
OrbScale* OrbDimension::getScale() const { return children_->first<OrbScale>(); }
unsigned int OrbDimension::removeScales() { return children_->removeAll<OrbScale>(*this, Ids::strip); }
