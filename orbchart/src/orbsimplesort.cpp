// A sort of categories by what they are.
#include "orbsimplesort.h"

#include "family.h"
#include "keyword.h"
#include "orbcategoryorder.h"
#include "orbsortmove.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords method{OrbUni::_method,
                          AbsentReadsAs(OrbSimpleSort::method_data),
                          {
                              {OrbSimpleSort::method_data, OrbUni::_data},
                              {OrbSimpleSort::method_custom, OrbSimpleSort::_UTF_method_custom},
                              {OrbSimpleSort::method_natural, OrbUni::_natural},
                              {OrbSimpleSort::method_naturalUsingLabel, OrbUni::_naturalUsingLabel},
                          }};
constexpr Boolean descending{OrbUni::_descending};

using Attributes = AttributeList<id, method, descending>;

using AfterSortMoves = FamilyList<OrbCategoryOrder>;
using Families = ChildFamilies<FamilyList<OrbSortMove, OrbCategoryOrder>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSimpleSort>() {
  return elementDescription<OrbSimpleSort, Attributes, Families>;
}

struct OrbSimpleSort::Children : Families {};

OrbSimpleSort::OrbSimpleSort(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbSimpleSort::~OrbSimpleSort() = default;

const XMLCh* OrbSimpleSort::getId() const { return id.get(*this); }
void OrbSimpleSort::setId(const XMLCh* value) { id.set(*this, value); }
void OrbSimpleSort::removeId() { id.remove(*this); }

OrbSimpleSort::ENUM_method OrbSimpleSort::getMethod() const { return method.get(*this); }
void OrbSimpleSort::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbSimpleSort::removeMethod() { method.remove(*this); }

bool OrbSimpleSort::getDescending() const { return descending.get(*this); }
void OrbSimpleSort::setDescending(bool value) { descending.set(*this, value); }
void OrbSimpleSort::removeDescending() { descending.remove(*this); }

OrbSortMove* OrbSimpleSort::addSortMove(const XMLCh* category) {
  return children_->add<OrbSortMove>(*this, AfterSortMoves{}, category);
}
std::vector<OrbSortMove*> OrbSimpleSort::getSortMoves() const { return children_->all<OrbSortMove>(); }
unsigned int OrbSimpleSort::removeSortMoves() { return children_->removeAll<OrbSortMove>(*this); }

OrbCategoryOrder* OrbSimpleSort::addCategoryOrder() { return children_->add<OrbCategoryOrder>(*this, atEnd); }
std::vector<OrbCategoryOrder*> OrbSimpleSort::getCategoryOrders() const { return children_->all<OrbCategoryOrder>(); }
unsigned int OrbSimpleSort::removeCategoryOrders() { return children_->removeAll<OrbCategoryOrder>(*this); }
