// What all variables share.
#include "ctvariabletype.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "modifierreference.h"
#include "orbaggregation.h"
#include "orbcategoricaldomain.h"
#include "orbextensionsv.h"
#include "orbformat.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

#include <xercesc/dom/DOMDocument.hpp>

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text label{OrbUni::_label};
constexpr Text shortLabel{OrbUni::_shortLabel};
constexpr Text description{OrbUni::_description};
constexpr Text creator{OrbUni::_creator};
constexpr AnyReference source{OrbUni::_source};
constexpr ReferenceTo<OrbBaseElement, OrbIntervalDomain, OrbCategoricalDomain> domain{OrbUni::_domain};
constexpr ModifierReference domainModifier{CTVariableType::_UTF_domainModifier};
constexpr VariableReference dependsOn{CTVariableType::_UTF_dependsOn};
// The getter looks under a key that no wrapper registers.
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType>> labelVariable{OrbUni::_labelVariable};
constexpr Keywords measurementLevel{
    CTVariableType::_UTF_measurementLevel,
    CTVariableType::measurementLevel_unset,
    {
        {CTVariableType::measurementLevel_nominal, CTVariableType::_UTF_measurementLevel_nominal},
        {CTVariableType::measurementLevel_ordinal, CTVariableType::_UTF_measurementLevel_ordinal},
        {CTVariableType::measurementLevel_interval, OrbUni::_interval},
        {CTVariableType::measurementLevel_ratio, CTVariableType::_UTF_measurementLevel_ratio},
    }};
constexpr Boolean categorical{OrbUni::_categorical};
constexpr Boolean key{OrbUni::_key};
constexpr Boolean weight{OrbUni::_weight};

using Attributes = AttributeList<id, label, shortLabel, description, creator, source, domain, domainModifier, dependsOn,
                                 labelVariable, measurementLevel, categorical, key, weight>;

constexpr OnlyOne oneAggregation{"Aggregation", "VariableType"};
constexpr OnlyOne oneFormat{"Format", "VariableType"};

using AfterAggregations = FamilyList<OrbFormat>;
using AfterExtensions = Joined<FamilyList<OrbAggregation>, AfterAggregations>;
using Families =
    ChildFamilies<FamilyList<OrbExtensionSV, Limited<OrbAggregation, oneAggregation>, Limited<OrbFormat, oneFormat>>,
                  Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTVariableType>() {
  return elementDescription<CTVariableType, Attributes, Families>;
}

struct CTVariableType::Children : Families {};

CTVariableType::CTVariableType(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  // A concrete variable may have children of its own beside the base's.
  children_->load(*this);
}
CTVariableType::CTVariableType(DOMElement* element, const XMLCh* id) : CTVariableType(element) { setId(id); }
CTVariableType::CTVariableType(DOMElement* element, WithoutChildren) :
    OrbBaseElement(element), children_(new Children) {}
CTVariableType::~CTVariableType() = default;

const XMLCh* CTVariableType::getId() const { return id.get(*this); }
void CTVariableType::setId(const XMLCh* value) { id.set(*this, value); }
void CTVariableType::removeId() { id.remove(*this); }

const XMLCh* CTVariableType::getLabel() const { return label.get(*this); }
void CTVariableType::setLabel(const XMLCh* value) { label.set(*this, value); }
void CTVariableType::removeLabel() { label.remove(*this); }

const XMLCh* CTVariableType::getShortLabel() const { return shortLabel.get(*this); }
void CTVariableType::setShortLabel(const XMLCh* value) { shortLabel.set(*this, value); }
void CTVariableType::removeShortLabel() { shortLabel.remove(*this); }

const XMLCh* CTVariableType::getDescription() const { return description.get(*this); }
void CTVariableType::setDescription(const XMLCh* value) { description.set(*this, value); }
void CTVariableType::removeDescription() { description.remove(*this); }

const XMLCh* CTVariableType::getCreator() const { return creator.get(*this); }
void CTVariableType::setCreator(const XMLCh* value) { creator.set(*this, value); }
void CTVariableType::removeCreator() { creator.remove(*this); }

// The getter gives the id itself.
const XMLCh* CTVariableType::getSource() const { return GetAttribute(source.name); }
void CTVariableType::setSource(const OrbBaseElement& target) { source.set(*this, target); }
void CTVariableType::removeSource() { source.remove(*this); }

OrbIntervalDomain* CTVariableType::getIntervalDomain() const { return domain.getAs<OrbIntervalDomain>(*this); }
OrbCategoricalDomain* CTVariableType::getCategoricalDomain() const { return domain.getAs<OrbCategoricalDomain>(*this); }
void CTVariableType::setDomain(const OrbIntervalDomain& target) { domain.set(*this, target); }
void CTVariableType::setDomain(const OrbCategoricalDomain& target) { domain.set(*this, target); }
void CTVariableType::removeDomain() { domain.remove(*this); }

CTModifier* CTVariableType::getDomainModifier() const { return domainModifier.get(*this); }
void CTVariableType::setDomainModifier(const CTModifier& target) { domainModifier.setAmong(*this, target); }
bool CTVariableType::isDomainModifierPresent() const { return domainModifier.isPresent(*this); }
void CTVariableType::removeDomainModifier() { domainModifier.remove(*this); }

CTVariableType* CTVariableType::getDependsOn() const { return dependsOn.get(*this); }
void CTVariableType::setDependsOn(const CTVariableType& target) { dependsOn.set(*this, target); }
bool CTVariableType::isDependsOnPresent() const { return dependsOn.isPresent(*this); }
void CTVariableType::removeDependsOn() { dependsOn.remove(*this); }

CTVariableType* CTVariableType::getLabelVariable() const { return labelVariable.get(*this); }
void CTVariableType::setLabelVariable(const CTVariableType& target) { labelVariable.set(*this, target); }
void CTVariableType::removeLabelVariable() { labelVariable.remove(*this); }

CTVariableType::ENUM_measurementLevel CTVariableType::getMeasurementLevel() const {
  return measurementLevel.get(*this);
}
void CTVariableType::setMeasurementLevel(ENUM_measurementLevel value) { measurementLevel.set(*this, value); }
bool CTVariableType::isMeasurementLevelPresent() const { return measurementLevel.isPresent(*this); }
void CTVariableType::removeMeasurementLevel() { measurementLevel.remove(*this); }

bool CTVariableType::getCategorical() const { return categorical.get(*this); }
void CTVariableType::setCategorical(bool value) { categorical.set(*this, value); }

bool CTVariableType::getKey() const { return key.get(*this); }
void CTVariableType::setKey(bool value) { key.set(*this, value); }
void CTVariableType::removeKey() { key.remove(*this); }

bool CTVariableType::getWeight() const { return weight.get(*this); }
void CTVariableType::setWeight(bool value) { weight.set(*this, value); }
void CTVariableType::removeWeight() { weight.remove(*this); }

OrbExtensionSV* CTVariableType::addExtension() { return children_->add<OrbExtensionSV>(*this, AfterExtensions{}); }
OrbExtensionSV* CTVariableType::getExtension() const { return children_->first<OrbExtensionSV>(); }
std::vector<OrbExtensionSV*> CTVariableType::getExtensions() const { return children_->all<OrbExtensionSV>(); }
unsigned int CTVariableType::removeExtensions() { return children_->removeAll<OrbExtensionSV>(*this); }

OrbAggregation* CTVariableType::addAggregation(const XMLCh* newCategory, const CTVariableType& sumVariable,
                                               double minFraction) {
  return children_->add<OrbAggregation>(*this, AfterAggregations{}, newCategory, sumVariable, minFraction);
}
std::vector<OrbAggregation*> CTVariableType::getAggregations() const { return children_->all<OrbAggregation>(); }
unsigned int CTVariableType::removeAggregations() { return children_->removeAll<OrbAggregation>(*this); }

OrbFormat* CTVariableType::addFormat() { return children_->add<OrbFormat>(*this, atEnd); }
void CTVariableType::addFormat(OrbFormat& format) {
  xercesc::DOMDocument* document = getImplementation()->getOwnerDocument();
  DOMElement* element = format.getImplementation();
  // A format of another document comes over as well.
  xercesc::DOMNode* copy =
      element->getOwnerDocument() == document ? element->cloneNode(true) : document->importNode(element, true);
  children_->adopt<OrbFormat>(*this, static_cast<DOMElement*>(copy), atEnd);
}
std::vector<OrbFormat*> CTVariableType::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int CTVariableType::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
