// How the panels of a faceted graph are laid out.
#include "orbfacetlayout.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbfacetlevel.h"
#include "orbsetcellproperties.h"
#include "orbtablelayout.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Double cellAspect{OrbUni::_cellAspect};
constexpr Keywords method{OrbUni::_method,
                          OrbFacetLayout::method_unset,
                          {
                              {OrbFacetLayout::method_structured, OrbUni::_structured},
                              {OrbFacetLayout::method_unstructured, OrbUni::_unstructured},
                              {OrbFacetLayout::method_transposed, OrbFacetLayout::_UTF_method_transposed},
                              {OrbFacetLayout::method_coordinates, OrbUni::_coordinates},
                          }};
constexpr Boolean topDown{OrbFacetLayout::_UTF_topDown};
constexpr Text cellSize{OrbFacetLayout::_UTF_cellSize};
constexpr Boolean verticalTitlesInCorner{OrbFacetLayout::_UTF_verticalTitlesInCorner};
constexpr Text alternatingColor{OrbFacetLayout::_UTF_alternatingColor};

using Attributes = AttributeList<id, cellAspect, method, topDown, cellSize, verticalTitlesInCorner, alternatingColor>;

using Families = ChildFamilies<FamilyList<OrbTableLayout, StripsIds<OrbFacetLevel>, OrbSetCellProperties>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFacetLayout>() {
  return elementDescription<OrbFacetLayout, Attributes, Families>;
}

struct OrbFacetLayout::Children : Families {};

OrbFacetLayout::OrbFacetLayout(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFacetLayout::~OrbFacetLayout() = default;

const XMLCh* OrbFacetLayout::getId() const { return id.get(*this); }
void OrbFacetLayout::setId(const XMLCh* value) { id.set(*this, value); }
void OrbFacetLayout::removeId() { id.remove(*this); }

double OrbFacetLayout::getCellAspect() const { return cellAspect.get(*this); }
void OrbFacetLayout::setCellAspect(double value) { cellAspect.set(*this, value); }
void OrbFacetLayout::removeCellAspect() { cellAspect.remove(*this); }

OrbFacetLayout::ENUM_method OrbFacetLayout::getMethod() const { return method.get(*this); }
void OrbFacetLayout::setMethod(ENUM_method value) { method.set(*this, value); }
bool OrbFacetLayout::isMethodPresent() const { return method.isPresent(*this); }
void OrbFacetLayout::removeMethod() { method.remove(*this); }

bool OrbFacetLayout::getTopDown() const { return topDown.get(*this); }
void OrbFacetLayout::setTopDown(bool value) { topDown.set(*this, value); }
void OrbFacetLayout::removeTopDown() { topDown.remove(*this); }

const XMLCh* OrbFacetLayout::getCellSize() const { return cellSize.get(*this); }
void OrbFacetLayout::setCellSize(const XMLCh* value) { cellSize.set(*this, value); }
bool OrbFacetLayout::isCellSizePresent() const { return cellSize.isPresent(*this); }
void OrbFacetLayout::removeCellSize() { cellSize.remove(*this); }

bool OrbFacetLayout::getVerticalTitlesInCorner() const { return verticalTitlesInCorner.get(*this); }
void OrbFacetLayout::setVerticalTitlesInCorner(bool value) { verticalTitlesInCorner.set(*this, value); }
bool OrbFacetLayout::isVerticalTitlesInCornerPresent() const { return verticalTitlesInCorner.isPresent(*this); }
void OrbFacetLayout::removeVerticalTitlesInCorner() { verticalTitlesInCorner.remove(*this); }

const XMLCh* OrbFacetLayout::getAlternatingColor() const { return alternatingColor.get(*this); }
void OrbFacetLayout::setAlternatingColor(const XMLCh* value) { alternatingColor.set(*this, value); }
bool OrbFacetLayout::isAlternatingColorPresent() const { return alternatingColor.isPresent(*this); }
void OrbFacetLayout::removeAlternatingColor() { alternatingColor.remove(*this); }

OrbTableLayout* OrbFacetLayout::addTableLayout() { return children_->add<OrbTableLayout>(*this, atEnd); }
std::vector<OrbTableLayout*> OrbFacetLayout::getTableLayouts() const { return children_->all<OrbTableLayout>(); }
unsigned int OrbFacetLayout::removeTableLayouts() { return children_->removeAll<OrbTableLayout>(*this); }

OrbFacetLevel* OrbFacetLayout::addFacetLevel(const XMLCh* id, unsigned int level) {
  return children_->add<OrbFacetLevel>(*this, atEnd, id, level);
}
OrbFacetLevel* OrbFacetLayout::addFacetLevel(unsigned int level) {
  return children_->add<OrbFacetLevel>(*this, atEnd, level);
}
std::vector<OrbFacetLevel*> OrbFacetLayout::getFacetLevels() const { return children_->all<OrbFacetLevel>(); }
unsigned int OrbFacetLayout::removeFacetLevels() { return children_->removeAll<OrbFacetLevel>(*this); }

OrbSetCellProperties* OrbFacetLayout::addSetCellProperties() {
  return children_->add<OrbSetCellProperties>(*this, atEnd);
}
std::vector<OrbSetCellProperties*> OrbFacetLayout::getSetCellPropertiess() const {
  return children_->all<OrbSetCellProperties>();
}
unsigned int OrbFacetLayout::removeSetCellPropertiess() { return children_->removeAll<OrbSetCellProperties>(*this); }
