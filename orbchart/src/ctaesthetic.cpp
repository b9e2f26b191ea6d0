// What all aesthetics share.
#include "ctaesthetic.h"

#include "attribute.h"
#include "ctmodifier.h"
#include "family.h"
#include "orbcategoricaldomain.h"
#include "orbcategoricaldomainmodifier.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orbsummarystatistic.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

using AfterScale = FamilyList<OrbSummaryStatistic>;

} // namespace

struct CTAesthetic::Children : ChildFamilies<FamilyList<OrbScale, OrbSummaryStatistic>> {};

CTAesthetic::CTAesthetic(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  // A concrete aesthetic may have children of its own beside the base's.
  children_->load(*this, Unknown::passes);
}
CTAesthetic::CTAesthetic(DOMElement* element, WithoutChildren) : OrbBaseElement(element), children_(new Children) {}
CTAesthetic::~CTAesthetic() = default;

const XMLCh* CTAesthetic::getId() const { return GetAttribute(OrbUni::_id); }
void CTAesthetic::setId(const XMLCh* id) { writeId(*this, id); }
void CTAesthetic::removeId() { removeAttribute(*this, OrbUni::_id); }

CTVariableType* CTAesthetic::getVariable() const { return readVariable(*this, OrbUni::_variable); }
OrbSourceVariable* CTAesthetic::getSourceVariable() const {
  return readReference<OrbSourceVariable>(*this, OrbUni::_variable);
}
void CTAesthetic::setVariable(const CTVariableType& variable) { writeReference(*this, OrbUni::_variable, variable); }
void CTAesthetic::setVariable(const OrbDerivedVariable& variable) {
  writeReference(*this, OrbUni::_variable, variable);
}
void CTAesthetic::removeVariable() { removeAttribute(*this, OrbUni::_variable); }

unsigned int CTAesthetic::getDimension() const { return readUnsigned(*this, OrbUni::_dimension); }
void CTAesthetic::setDimension(unsigned int dimension) { writeUnsigned(*this, OrbUni::_dimension, dimension); }
bool CTAesthetic::isDimensionPresent() const { return isPresent(*this, OrbUni::_dimension); }
void CTAesthetic::removeDimension() { removeAttribute(*this, OrbUni::_dimension); }

OrbBaseElement* CTAesthetic::getDomain() const {
  return readReferenceTo<OrbBaseElement, OrbIntervalDomain, OrbCategoricalDomain>(*this, OrbUni::_domain);
}
void CTAesthetic::setDomain(const OrbIntervalDomain& domain) { writeReference(*this, OrbUni::_domain, domain); }
void CTAesthetic::setDomain(const OrbCategoricalDomain& domain) { writeReference(*this, OrbUni::_domain, domain); }
bool CTAesthetic::isDomainPresent() const { return isPresent(*this, OrbUni::_domain); }
void CTAesthetic::removeDomain() { removeAttribute(*this, OrbUni::_domain); }

bool CTAesthetic::getClamp() const { return readBoolean(*this, _UTF_clamp); }
void CTAesthetic::setClamp(bool clamp) { writeBoolean(*this, _UTF_clamp, clamp); }
bool CTAesthetic::isClampPresent() const { return isPresent(*this, _UTF_clamp); }
void CTAesthetic::removeClamp() { removeAttribute(*this, _UTF_clamp); }

bool CTAesthetic::getSplit() const { return readBoolean(*this, OrbUni::_split); }
void CTAesthetic::setSplit(bool split) { writeBoolean(*this, OrbUni::_split, split); }
bool CTAesthetic::isSplitPresent() const { return isPresent(*this, OrbUni::_split); }
void CTAesthetic::removeSplit() { removeAttribute(*this, OrbUni::_split); }

OrbBaseElement* CTAesthetic::getDomainModifier() const {
  return readReferenceTo<OrbBaseElement, OrbCategoricalDomainModifier, OrbIntervalDomainModifier>(*this,
                                                                                                  _UTF_domainModifier);
}
void CTAesthetic::setDomainModifier(const CTModifier& modifier) {
  writeReferenceAmong<OrbCategoricalDomainModifier, OrbIntervalDomainModifier>(*this, _UTF_domainModifier, modifier);
}
bool CTAesthetic::isDomainModifierPresent() const { return isPresent(*this, _UTF_domainModifier); }
void CTAesthetic::removeDomainModifier() { removeAttribute(*this, _UTF_domainModifier); }

OrbScale* CTAesthetic::addScale(OrbScale::ENUM_method method) {
  return children_->add<OrbScale>(*this, OnlyOne("Scale", "statistic"), AfterScale{}, method);
}
OrbScale* CTAesthetic::getScale() const { return children_->first<OrbScale>(); }
unsigned int CTAesthetic::removeScales() { return children_->removeAll<OrbScale>(*this); }

OrbSummaryStatistic* CTAesthetic::addSummaryStatistic() {
  throwIfNotAlone("SummaryStatistic");
  return children_->add<OrbSummaryStatistic>(*this, atEnd);
}
OrbSummaryStatistic* CTAesthetic::getSummaryStatistic() const { return children_->first<OrbSummaryStatistic>(); }
unsigned int CTAesthetic::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

void CTAesthetic::throwIfNotAlone(const std::string& existing) const {
  throwIfChildExists(children_->count<OrbSummaryStatistic>(), 0, existing, "SummaryStatistic", "statistic",
                     __builtin_FILE(), __builtin_LINE());
}
