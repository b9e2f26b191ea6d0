// One level of the facets of a graph.
#include "orbfacetlevel.h"

#include "attribute.h"
#include "family.h"
#include "loading.h"
#include "orbaxis.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text gap{OrbUni::_gap};
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Integer zOrder{OrbUni::_zOrder};
constexpr Unsigned level{OrbUni::_level};

using Attributes = AttributeList<id, gap, style, zOrder, level>;

constexpr UpTo threeAxes{3, "Axis", "FacetLevel"};

using Families = ChildFamilies<FamilyList<StripsIds<Limited<OrbAxis, threeAxes>>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFacetLevel>() {
  return elementDescription<OrbFacetLevel, Attributes, Families>;
}

struct OrbFacetLevel::Children : Families {};

OrbFacetLevel::OrbFacetLevel(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
// A new element has no children: these two do not load.
OrbFacetLevel::OrbFacetLevel(DOMElement* element, unsigned int level) :
    OrbBaseElement(element), children_(new Children) {
  bindLeaf(*this);
  setLevel(level);
}
OrbFacetLevel::OrbFacetLevel(DOMElement* element, const XMLCh* id, unsigned int level) :
    OrbBaseElement(element), children_(new Children) {
  bindLeaf(*this);
  setId(id);
  setLevel(level);
}
OrbFacetLevel::~OrbFacetLevel() = default;

const XMLCh* OrbFacetLevel::getId() const { return id.get(*this); }
void OrbFacetLevel::setId(const XMLCh* value) { id.set(*this, value); }
void OrbFacetLevel::removeId() { id.remove(*this); }

const XMLCh* OrbFacetLevel::getGap() const { return gap.get(*this); }
void OrbFacetLevel::setGap(const XMLCh* value) { gap.set(*this, value); }
void OrbFacetLevel::removeGap() { gap.remove(*this); }

OrbStyle* OrbFacetLevel::getStyle() const { return style.get(*this); }
void OrbFacetLevel::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbFacetLevel::removeStyle() { style.remove(*this); }

int OrbFacetLevel::getZOrder() const { return zOrder.get(*this); }
void OrbFacetLevel::setZOrder(int value) { zOrder.set(*this, value); }
void OrbFacetLevel::removeZOrder() { zOrder.remove(*this); }

unsigned int OrbFacetLevel::getLevel() const { return level.get(*this); }
void OrbFacetLevel::setLevel(unsigned int value) { level.set(*this, value); }

OrbAxis* OrbFacetLevel::addAxis() { return children_->add<OrbAxis>(*this, atEnd); }
std::vector<OrbAxis*> OrbFacetLevel::getAxiss() const { return children_->all<OrbAxis>(); }
unsigned int OrbFacetLevel::removeAxiss() { return children_->removeAll<OrbAxis>(*this); }
