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

constexpr Id id;
constexpr VariableReference variable{OrbUni::_variable};
constexpr Unsigned dimension{OrbUni::_dimension};
constexpr ReferenceTo<OrbBaseElement, OrbIntervalDomain, OrbCategoricalDomain> domain{OrbUni::_domain};
constexpr Boolean clamp{CTAesthetic::_UTF_clamp};
constexpr Boolean split{OrbUni::_split};
constexpr ReferenceTo<OrbBaseElement, OrbCategoricalDomainModifier, OrbIntervalDomainModifier> domainModifier{
    CTAesthetic::_UTF_domainModifier};

using Attributes = AttributeList<id, variable, dimension, domain, clamp, split, domainModifier>;

using AfterScale = FamilyList<OrbSummaryStatistic>;

constexpr OnlyOne oneScale{"Scale", "statistic"};
constexpr OnlyOne oneSummaryStatistic{"SummaryStatistic", "statistic"};

using Families =
    ChildFamilies<FamilyList<Limited<OrbScale, oneScale>, Limited<OrbSummaryStatistic, oneSummaryStatistic>>,
                  Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTAesthetic>() {
  return elementDescription<CTAesthetic, Attributes, Families>;
}

struct CTAesthetic::Children : Families {};

CTAesthetic::CTAesthetic(DOMElement* element) : CTAesthetic(element, WithoutChildren()) { loadChildren(); }
CTAesthetic::CTAesthetic(DOMElement* element, WithoutChildren) : OrbBaseElement(element), children_(new Children) {}
CTAesthetic::~CTAesthetic() = default;

// A concrete aesthetic may have children of its own beside the base's.
void CTAesthetic::loadChildren() { children_->load(*this); }

const XMLCh* CTAesthetic::getId() const { return id.get(*this); }
void CTAesthetic::setId(const XMLCh* value) { id.set(*this, value); }
void CTAesthetic::removeId() { id.remove(*this); }

CTVariableType* CTAesthetic::getVariable() const { return variable.get(*this); }
OrbSourceVariable* CTAesthetic::getSourceVariable() const { return variable.getAs<OrbSourceVariable>(*this); }
void CTAesthetic::setVariable(const CTVariableType& target) { variable.set(*this, target); }
void CTAesthetic::setVariable(const OrbDerivedVariable& target) { variable.set(*this, target); }
void CTAesthetic::removeVariable() { variable.remove(*this); }

unsigned int CTAesthetic::getDimension() const { return dimension.get(*this); }
void CTAesthetic::setDimension(unsigned int value) { dimension.set(*this, value); }
bool CTAesthetic::isDimensionPresent() const { return dimension.isPresent(*this); }
void CTAesthetic::removeDimension() { dimension.remove(*this); }

OrbBaseElement* CTAesthetic::getDomain() const { return domain.get(*this); }
void CTAesthetic::setDomain(const OrbIntervalDomain& target) { domain.set(*this, target); }
void CTAesthetic::setDomain(const OrbCategoricalDomain& target) { domain.set(*this, target); }
bool CTAesthetic::isDomainPresent() const { return domain.isPresent(*this); }
void CTAesthetic::removeDomain() { domain.remove(*this); }

bool CTAesthetic::getClamp() const { return clamp.get(*this); }
void CTAesthetic::setClamp(bool value) { clamp.set(*this, value); }
bool CTAesthetic::isClampPresent() const { return clamp.isPresent(*this); }
void CTAesthetic::removeClamp() { clamp.remove(*this); }

bool CTAesthetic::getSplit() const { return split.get(*this); }
void CTAesthetic::setSplit(bool value) { split.set(*this, value); }
bool CTAesthetic::isSplitPresent() const { return split.isPresent(*this); }
void CTAesthetic::removeSplit() { split.remove(*this); }

OrbBaseElement* CTAesthetic::getDomainModifier() const { return domainModifier.get(*this); }
void CTAesthetic::setDomainModifier(const CTModifier& target) { domainModifier.setAmong(*this, target); }
bool CTAesthetic::isDomainModifierPresent() const { return domainModifier.isPresent(*this); }
void CTAesthetic::removeDomainModifier() { domainModifier.remove(*this); }

OrbScale* CTAesthetic::addScale(OrbScale::ENUM_method method) {
  return children_->add<OrbScale>(*this, AfterScale{}, method);
}
OrbScale* CTAesthetic::getScale() const { return children_->first<OrbScale>(); }
unsigned int CTAesthetic::removeScales() { return children_->removeAll<OrbScale>(*this); }

OrbSummaryStatistic* CTAesthetic::addSummaryStatistic() { return children_->add<OrbSummaryStatistic>(*this, atEnd); }
OrbSummaryStatistic* CTAesthetic::getSummaryStatistic() const { return children_->first<OrbSummaryStatistic>(); }
unsigned int CTAesthetic::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

void CTAesthetic::throwIfNotAlone(const std::string& existing) const {
  throwIfChildExists(children_->count<OrbSummaryStatistic>(), 0, existing, "SummaryStatistic", "statistic",
                     __builtin_FILE(), __builtin_LINE());
}
