// The layout of panels as a table.
#include "orbtablelayout.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orblabel.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Boolean verticalTitlesInCorner{OrbTableLayout::_UTF_verticalTitlesInCorner};
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Keywords fitCells{OrbTableLayout::_UTF_fitCells,
                            OrbTableLayout::fitCells_unset,
                            {
                                {OrbTableLayout::fitCells_none, OrbUni::_none},
                                {OrbTableLayout::fitCells_cells, OrbTableLayout::_UTF_fitCells_cells},
                                {OrbTableLayout::fitCells_ticks, OrbTableLayout::_UTF_fitCells_ticks},
                                {OrbTableLayout::fitCells_both, OrbUni::_both},
                            }};

using Attributes = AttributeList<id, verticalTitlesInCorner, style, fitCells>;

using Families = ChildFamilies<FamilyList<OrbLabel>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbTableLayout>() {
  return elementDescription<OrbTableLayout, Attributes, Families>;
}

struct OrbTableLayout::Children : Families {};

OrbTableLayout::OrbTableLayout(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbTableLayout::~OrbTableLayout() = default;

const XMLCh* OrbTableLayout::getId() const { return id.get(*this); }
void OrbTableLayout::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbTableLayout::isIdPresent() const { return id.isPresent(*this); }
void OrbTableLayout::removeId() { id.remove(*this); }

bool OrbTableLayout::getVerticalTitlesInCorner() const { return verticalTitlesInCorner.get(*this); }
void OrbTableLayout::setVerticalTitlesInCorner(bool value) { verticalTitlesInCorner.set(*this, value); }
bool OrbTableLayout::isVerticalTitlesInCornerPresent() const { return verticalTitlesInCorner.isPresent(*this); }
void OrbTableLayout::removeVerticalTitlesInCorner() { verticalTitlesInCorner.remove(*this); }

OrbStyle* OrbTableLayout::getStyle() const { return style.get(*this); }
void OrbTableLayout::setStyle(const OrbStyle& target) { style.set(*this, target); }
bool OrbTableLayout::isStylePresent() const { return style.isPresent(*this); }
void OrbTableLayout::removeStyle() { style.remove(*this); }

OrbTableLayout::ENUM_fitCells OrbTableLayout::getFitCells() const { return fitCells.get(*this); }
void OrbTableLayout::setFitCells(ENUM_fitCells value) { fitCells.set(*this, value); }
bool OrbTableLayout::isFitCellsPresent() const { return fitCells.isPresent(*this); }
void OrbTableLayout::removeFitCells() { fitCells.remove(*this); }

OrbLabel* OrbTableLayout::addLabel() { return children_->add<OrbLabel>(*this, atEnd); }
std::vector<OrbLabel*> OrbTableLayout::getLabels() const { return children_->all<OrbLabel>(); }
unsigned int OrbTableLayout::removeLabels() { return children_->removeAll<OrbLabel>(*this); }
