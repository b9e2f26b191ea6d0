// One dimension of a coordinate system.
#include "orbdimension.h"

#include "attribute.h"
#include "family.h"
#include "modifierreference.h"
#include "orbaxis.h"
#include "orbcategoricaldomain.h"
#include "orbintervaldomain.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr ReferenceTo<OrbBaseElement, OrbIntervalDomain, OrbCategoricalDomain> domain{OrbUni::_domain};
constexpr Boolean unionDomain{OrbUni::_unionDomain};
constexpr Boolean niceUpperMapping{OrbUni::_niceUpperMapping};
constexpr Boolean niceLowerMapping{OrbUni::_niceLowerMapping};
constexpr Text upperMargin{OrbUni::_upperMargin};
constexpr Text lowerMargin{OrbUni::_lowerMargin};
constexpr VariableReference clusterVariable{OrbUni::_clusterVariable};
constexpr Text clusterGap{OrbUni::_clusterGap};
constexpr Boolean facetsShareScale{OrbDimension::_UTF_facetsShareScale};
constexpr ModifierReference domainModifier{OrbDimension::_UTF_domainModifier};

using Attributes = AttributeList<id, domain, unionDomain, niceUpperMapping, niceLowerMapping, upperMargin, lowerMargin,
                                 clusterVariable, clusterGap, facetsShareScale, domainModifier>;

constexpr OnlyOne oneScale{"Scale", "Dimension"};
constexpr AtMost twoAxes{2, "Dimension can have at most 2 axis children."};

using AfterScales = FamilyList<OrbAxis>;
using Families =
    ChildFamilies<FamilyList<StripsIds<Limited<OrbScale, oneScale>>, StripsIds<Limited<OrbAxis, twoAxes>>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDimension>() {
  return elementDescription<OrbDimension, Attributes, Families>;
}

struct OrbDimension::Children : Families {};

OrbDimension::OrbDimension(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDimension::~OrbDimension() = default;

const XMLCh* OrbDimension::getId() const { return id.get(*this); }
void OrbDimension::setId(const XMLCh* value) { id.set(*this, value); }
void OrbDimension::removeId() { id.remove(*this); }

OrbBaseElement* OrbDimension::getDomain() const { return domain.get(*this); }
void OrbDimension::setDomain(const OrbIntervalDomain& target) { domain.set(*this, target); }
void OrbDimension::setDomain(const OrbCategoricalDomain& target) { domain.set(*this, target); }
void OrbDimension::removeDomain() { domain.remove(*this); }

bool OrbDimension::getUnionDomain() const { return unionDomain.get(*this); }
void OrbDimension::setUnionDomain(bool value) { unionDomain.set(*this, value); }
void OrbDimension::removeUnionDomain() { unionDomain.remove(*this); }

bool OrbDimension::getNiceUpperMapping() const { return niceUpperMapping.get(*this); }
void OrbDimension::setNiceUpperMapping(bool value) { niceUpperMapping.set(*this, value); }
void OrbDimension::removeNiceUpperMapping() { niceUpperMapping.remove(*this); }

bool OrbDimension::getNiceLowerMapping() const { return niceLowerMapping.get(*this); }
void OrbDimension::setNiceLowerMapping(bool value) { niceLowerMapping.set(*this, value); }
void OrbDimension::removeNiceLowerMapping() { niceLowerMapping.remove(*this); }

const XMLCh* OrbDimension::getUpperMargin() const { return upperMargin.get(*this); }
void OrbDimension::setUpperMargin(const XMLCh* value) { upperMargin.set(*this, value); }
void OrbDimension::removeUpperMargin() { upperMargin.remove(*this); }

const XMLCh* OrbDimension::getLowerMargin() const { return lowerMargin.get(*this); }
void OrbDimension::setLowerMargin(const XMLCh* value) { lowerMargin.set(*this, value); }
void OrbDimension::removeLowerMargin() { lowerMargin.remove(*this); }

CTVariableType* OrbDimension::getClusterVariable() const { return clusterVariable.get(*this); }
void OrbDimension::setClusterVariable(const CTVariableType& target) { clusterVariable.set(*this, target); }
void OrbDimension::removeClusterVariable() { clusterVariable.remove(*this); }

const XMLCh* OrbDimension::getClusterGap() const { return clusterGap.get(*this); }
void OrbDimension::setClusterGap(const XMLCh* value) { clusterGap.set(*this, value); }
void OrbDimension::removeClusterGap() { clusterGap.remove(*this); }

bool OrbDimension::getFacetsShareScale() const { return facetsShareScale.get(*this); }
void OrbDimension::setFacetsShareScale(bool value) { facetsShareScale.set(*this, value); }
bool OrbDimension::isFacetsShareScalePresent() const { return facetsShareScale.isPresent(*this); }
void OrbDimension::removeFacetsShareScale() { facetsShareScale.remove(*this); }

CTModifier* OrbDimension::getDomainModifier() const { return domainModifier.get(*this); }
void OrbDimension::setDomainModifier(const CTModifier& target) { domainModifier.setAmong(*this, target); }
bool OrbDimension::isDomainModifierPresent() const { return domainModifier.isPresent(*this); }
void OrbDimension::removeDomainModifier() { domainModifier.remove(*this); }

OrbScale* OrbDimension::addScale(OrbScale::ENUM_method method) {
  return children_->add<OrbScale>(*this, AfterScales{}, method);
}
OrbScale* OrbDimension::getScale() const { return children_->first<OrbScale>(); }
unsigned int OrbDimension::removeScales() { return children_->removeAll<OrbScale>(*this); }

OrbAxis* OrbDimension::addAxis() { return children_->add<OrbAxis>(*this, atEnd); }
std::vector<OrbAxis*> OrbDimension::getAxiss() const { return children_->all<OrbAxis>(); }
unsigned int OrbDimension::removeAxiss() { return children_->removeAll<OrbAxis>(*this); }
bool OrbDimension::removeAxis(unsigned int index) { return children_->removeAt<OrbAxis>(*this, index); }
