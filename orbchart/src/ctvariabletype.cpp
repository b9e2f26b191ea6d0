// What all variables share.
#include "ctvariabletype.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "modifierreference.h"
#include "orbaggregation.h"
#include "orbcategoricaldomain.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Keyword<CTVariableType::ENUM_measurementLevel> measurementLevels[] = {
    {CTVariableType::measurementLevel_nominal, CTVariableType::_UTF_measurementLevel_nominal},
    {CTVariableType::measurementLevel_ordinal, CTVariableType::_UTF_measurementLevel_ordinal},
    {CTVariableType::measurementLevel_interval, OrbUni::_interval},
    {CTVariableType::measurementLevel_ratio, CTVariableType::_UTF_measurementLevel_ratio},
};

// What the language has after them has no class here.
using AfterAggregations = FamilyList<>;

} // namespace

struct CTVariableType::Children : ChildFamilies<FamilyList<OrbAggregation>> {};

CTVariableType::CTVariableType(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  // A concrete variable may have children of its own beside the base's.
  children_->load(*this, Unknown::passes);
}
CTVariableType::CTVariableType(DOMElement* element, const XMLCh* id) : CTVariableType(element) { setId(id); }
CTVariableType::CTVariableType(DOMElement* element, WithoutChildren) :
    OrbBaseElement(element), children_(new Children) {}
CTVariableType::~CTVariableType() = default;

const XMLCh* CTVariableType::getId() const { return GetAttribute(OrbUni::_id); }
void CTVariableType::setId(const XMLCh* id) { writeId(*this, id); }
void CTVariableType::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* CTVariableType::getLabel() const { return GetAttribute(OrbUni::_label); }
void CTVariableType::setLabel(const XMLCh* label) { SetAttribute(OrbUni::_label, label); }
void CTVariableType::removeLabel() { removeAttribute(*this, OrbUni::_label); }

const XMLCh* CTVariableType::getShortLabel() const { return GetAttribute(OrbUni::_shortLabel); }
void CTVariableType::setShortLabel(const XMLCh* shortLabel) { SetAttribute(OrbUni::_shortLabel, shortLabel); }
void CTVariableType::removeShortLabel() { removeAttribute(*this, OrbUni::_shortLabel); }

const XMLCh* CTVariableType::getDescription() const { return GetAttribute(OrbUni::_description); }
void CTVariableType::setDescription(const XMLCh* description) { SetAttribute(OrbUni::_description, description); }
void CTVariableType::removeDescription() { removeAttribute(*this, OrbUni::_description); }

const XMLCh* CTVariableType::getCreator() const { return GetAttribute(OrbUni::_creator); }
void CTVariableType::setCreator(const XMLCh* creator) { SetAttribute(OrbUni::_creator, creator); }
void CTVariableType::removeCreator() { removeAttribute(*this, OrbUni::_creator); }

const XMLCh* CTVariableType::getSource() const { return GetAttribute(OrbUni::_source); }
void CTVariableType::setSource(const OrbBaseElement& source) {
  SetAttribute(OrbUni::_source, source.GetAttribute(OrbUni::_id));
}
void CTVariableType::removeSource() { removeAttribute(*this, OrbUni::_source); }

OrbIntervalDomain* CTVariableType::getIntervalDomain() const {
  return readReference<OrbIntervalDomain>(*this, OrbUni::_domain);
}
OrbCategoricalDomain* CTVariableType::getCategoricalDomain() const {
  return readReference<OrbCategoricalDomain>(*this, OrbUni::_domain);
}
void CTVariableType::setDomain(const OrbIntervalDomain& domain) { writeReference(*this, OrbUni::_domain, domain); }
void CTVariableType::setDomain(const OrbCategoricalDomain& domain) { writeReference(*this, OrbUni::_domain, domain); }
void CTVariableType::removeDomain() { removeAttribute(*this, OrbUni::_domain); }

CTModifier* CTVariableType::getDomainModifier() const { return readModifier(*this, _UTF_domainModifier); }
void CTVariableType::setDomainModifier(const CTModifier& modifier) {
  writeModifier(*this, _UTF_domainModifier, modifier);
}
bool CTVariableType::isDomainModifierPresent() const { return isPresent(*this, _UTF_domainModifier); }
void CTVariableType::removeDomainModifier() { removeAttribute(*this, _UTF_domainModifier); }

CTVariableType* CTVariableType::getDependsOn() const { return readVariable(*this, _UTF_dependsOn); }
void CTVariableType::setDependsOn(const CTVariableType& variable) { writeReference(*this, _UTF_dependsOn, variable); }
bool CTVariableType::isDependsOnPresent() const { return isPresent(*this, _UTF_dependsOn); }
void CTVariableType::removeDependsOn() { removeAttribute(*this, _UTF_dependsOn); }

// No wrapper registers the key `labelVariable`, under which the target would be looked up.
CTVariableType* CTVariableType::getLabelVariable() const { return nullptr; }
void CTVariableType::setLabelVariable(const CTVariableType& variable) {
  writeReference(*this, OrbUni::_labelVariable, variable);
}
void CTVariableType::removeLabelVariable() { removeAttribute(*this, OrbUni::_labelVariable); }

CTVariableType::ENUM_measurementLevel CTVariableType::getMeasurementLevel() const {
  return readKeyword(*this, _UTF_measurementLevel, measurementLevels, measurementLevel_unset);
}
void CTVariableType::setMeasurementLevel(ENUM_measurementLevel level) {
  writeKeyword(*this, _UTF_measurementLevel, measurementLevels, level);
}
bool CTVariableType::isMeasurementLevelPresent() const { return isPresent(*this, _UTF_measurementLevel); }
void CTVariableType::removeMeasurementLevel() { removeAttribute(*this, _UTF_measurementLevel); }

bool CTVariableType::getCategorical() const { return readBoolean(*this, OrbUni::_categorical); }
void CTVariableType::setCategorical(bool categorical) { writeBoolean(*this, OrbUni::_categorical, categorical); }

bool CTVariableType::getKey() const { return readBoolean(*this, OrbUni::_key); }
void CTVariableType::setKey(bool key) { writeBoolean(*this, OrbUni::_key, key); }
void CTVariableType::removeKey() { removeAttribute(*this, OrbUni::_key); }

bool CTVariableType::getWeight() const { return readBoolean(*this, OrbUni::_weight); }
void CTVariableType::setWeight(bool weight) { writeBoolean(*this, OrbUni::_weight, weight); }
void CTVariableType::removeWeight() { removeAttribute(*this, OrbUni::_weight); }

OrbAggregation* CTVariableType::addAggregation(const XMLCh* newCategory, const CTVariableType& sumVariable,
                                               double minFraction) {
  return children_->add<OrbAggregation>(*this, OnlyOne("Aggregation", "VariableType"), AfterAggregations{}, newCategory,
                                        sumVariable, minFraction);
}
std::vector<OrbAggregation*> CTVariableType::getAggregations() const { return children_->all<OrbAggregation>(); }
unsigned int CTVariableType::removeAggregations() { return children_->removeAll<OrbAggregation>(*this); }
