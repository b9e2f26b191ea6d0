// A domain of categories.
#include "orbcategoricaldomain.h"

#include "attribute.h"
#include "family.h"
#include "orbcategories.h"
#include "orbdomainreference.h"
#include "orbformat.h"
#include "orbsimplesort.h"
#include "orbstatisticsort.h"
#include "orbuni.h"
#include "orbvariablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Boolean date{OrbUni::_date};

using Attributes = AttributeList<id, date>;

// Either kind of sort is refused with the same words.
constexpr OneAmong<OrbStatisticSort, OrbSimpleSort> oneSort{"StatisticSort", "CategoricalDomain"};

using Sorts = FamilyList<Limited<OrbStatisticSort, oneSort>, Limited<OrbSimpleSort, oneSort>>;
using AfterCategories = Sorts;
using AfterReferences = Joined<FamilyList<OrbCategories>, AfterCategories>;
using AfterFormats = Joined<FamilyList<OrbVariableReference, OrbDomainReference>, AfterReferences>;
using Families = ChildFamilies<Joined<FamilyList<OrbFormat>, AfterFormats>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbCategoricalDomain>() {
  return elementDescription<OrbCategoricalDomain, Attributes, Families>;
}

struct OrbCategoricalDomain::Children : Families {};

OrbCategoricalDomain::OrbCategoricalDomain(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbCategoricalDomain::OrbCategoricalDomain(DOMElement* element, const XMLCh* id) : OrbCategoricalDomain(element) {
  setId(id);
}
OrbCategoricalDomain::~OrbCategoricalDomain() = default;

const XMLCh* OrbCategoricalDomain::getId() const { return id.get(*this); }
void OrbCategoricalDomain::setId(const XMLCh* value) { id.set(*this, value); }
void OrbCategoricalDomain::removeId() { id.remove(*this); }

bool OrbCategoricalDomain::getDate() const { return date.get(*this); }
void OrbCategoricalDomain::setDate(bool value) { date.set(*this, value); }
void OrbCategoricalDomain::removeDate() { date.remove(*this); }

OrbVariableReference* OrbCategoricalDomain::addVariableReference(const CTVariableType& variable) {
  return children_->add<OrbVariableReference>(*this, AfterReferences{}, variable);
}
std::vector<OrbVariableReference*> OrbCategoricalDomain::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbCategoricalDomain::removeVariableReferences() {
  return children_->removeAll<OrbVariableReference>(*this);
}

OrbDomainReference* OrbCategoricalDomain::addDomainReference(const OrbIntervalDomain& domain) {
  return children_->add<OrbDomainReference>(*this, AfterReferences{}, domain);
}
OrbDomainReference* OrbCategoricalDomain::addDomainReference(const OrbCategoricalDomain& domain) {
  return children_->add<OrbDomainReference>(*this, AfterReferences{}, domain);
}
std::vector<OrbDomainReference*> OrbCategoricalDomain::getDomainReferences() const {
  return children_->all<OrbDomainReference>();
}
unsigned int OrbCategoricalDomain::removeDomainReferences() { return children_->removeAll<OrbDomainReference>(*this); }

OrbCategories* OrbCategoricalDomain::addCategories() { return children_->add<OrbCategories>(*this, AfterCategories{}); }
std::vector<OrbCategories*> OrbCategoricalDomain::getCategoriess() const { return children_->all<OrbCategories>(); }
unsigned int OrbCategoricalDomain::removeCategoriess() { return children_->removeAll<OrbCategories>(*this); }

OrbStatisticSort* OrbCategoricalDomain::addStatisticSort(const CTVariableType& sourceVariable) {
  return children_->add<OrbStatisticSort>(*this, atEnd, sourceVariable);
}
std::vector<OrbStatisticSort*> OrbCategoricalDomain::getStatisticSorts() const {
  return children_->all<OrbStatisticSort>();
}
unsigned int OrbCategoricalDomain::removeStatisticSorts() { return children_->removeAll<OrbStatisticSort>(*this); }

OrbSimpleSort* OrbCategoricalDomain::addSimpleSort() { return children_->add<OrbSimpleSort>(*this, atEnd); }
std::vector<OrbSimpleSort*> OrbCategoricalDomain::getSimpleSorts() const { return children_->all<OrbSimpleSort>(); }
unsigned int OrbCategoricalDomain::removeSimpleSorts() { return children_->removeAll<OrbSimpleSort>(*this); }

OrbFormat* OrbCategoricalDomain::addFormat() { return children_->add<OrbFormat>(*this, AfterFormats{}); }
std::vector<OrbFormat*> OrbCategoricalDomain::getFormats() const { return children_->all<OrbFormat>(); }
unsigned int OrbCategoricalDomain::removeFormats() { return children_->removeAll<OrbFormat>(*this); }
