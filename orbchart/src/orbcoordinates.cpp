// A coordinate system of a graph.
#include "orbcoordinates.h"

#include "attribute.h"
#include "family.h"
#include "orbdimension.h"
#include "orbdimensionreference.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using Families = ChildFamilies<FamilyList<OrbDimension, OrbDimensionReference>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbCoordinates>() {
  return elementDescription<OrbCoordinates, Attributes, Families>;
}

struct OrbCoordinates::Children : Families {};

OrbCoordinates::OrbCoordinates(DOMElement* element) : OrbBaseElement(element), children_(new Children) { init(); }
OrbCoordinates::OrbCoordinates(DOMElement* element, const XMLCh* id) :
    OrbBaseElement(element), children_(new Children) {
  requireElement(*this);
  setId(id);
  init();
}
OrbCoordinates::~OrbCoordinates() = default;

void OrbCoordinates::init() {
  children_->load(*this);
  bind(*this);
}

const XMLCh* OrbCoordinates::getId() const { return id.get(*this); }
void OrbCoordinates::setId(const XMLCh* value) { id.set(*this, value); }
void OrbCoordinates::removeId() { id.remove(*this); }

OrbDimension* OrbCoordinates::addDimension() { return children_->add<OrbDimension>(*this, atEnd); }
std::vector<OrbDimension*> OrbCoordinates::getDimensions() const { return children_->all<OrbDimension>(); }
bool OrbCoordinates::removeDimension(unsigned int index) { return children_->removeAt<OrbDimension>(*this, index); }
unsigned int OrbCoordinates::removeDimensions() { return children_->removeAll<OrbDimension>(*this); }

OrbDimensionReference* OrbCoordinates::addDimensionReference() {
  return children_->add<OrbDimensionReference>(*this, atEnd);
}
std::vector<OrbDimensionReference*> OrbCoordinates::getDimensionReferences() const {
  return children_->all<OrbDimensionReference>();
}
unsigned int OrbCoordinates::removeDimensionReferences() { return children_->removeAll<OrbDimensionReference>(*this); }
