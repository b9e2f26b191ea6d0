// A coordinate system of a graph.
#include "orbcoordinates.h"

#include "attribute.h"
#include "family.h"
#include "orbdimension.h"
#include "orbdimensionreference.h"
#include "orbfisheyetransform.h"
#include "orbfunctionaltransform.h"
#include "orbinsettransform.h"
#include "orbmapprojection.h"
#include "orbobliquetransform.h"
#include "orbparallelcoordinatestransform.h"
#include "orbpolartransform.h"
#include "orbrectangulartransform.h"
#include "orbreflectiontransform.h"
#include "orbrotationtransform.h"
#include "orbsameratiotransform.h"
#include "orbtransposetransform.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

using AfterRectangularTransforms = FamilyList<OrbInsetTransform>;
using AfterPolarTransforms = Joined<FamilyList<OrbRectangularTransform>, AfterRectangularTransforms>;
using Families =
    ChildFamilies<FamilyList<OrbDimension, OrbDimensionReference, OrbRotationTransform, OrbReflectionTransform,
                             OrbObliqueTransform, OrbRectangularTransform, OrbMapProjection, OrbFishEyeTransform,
                             OrbFunctionalTransform, OrbInsetTransform, OrbPolarTransform, OrbSameRatioTransform,
                             StripsIds<OrbTransposeTransform>, OrbParallelCoordinatesTransform>>;

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

OrbRotationTransform* OrbCoordinates::addRotationTransform() {
  return children_->add<OrbRotationTransform>(*this, atEnd);
}
std::vector<OrbRotationTransform*> OrbCoordinates::getRotationTransforms() const {
  return children_->all<OrbRotationTransform>();
}
unsigned int OrbCoordinates::removeRotationTransforms() { return children_->removeAll<OrbRotationTransform>(*this); }

OrbReflectionTransform* OrbCoordinates::addReflectionTransform() {
  return children_->add<OrbReflectionTransform>(*this, atEnd);
}
std::vector<OrbReflectionTransform*> OrbCoordinates::getReflectionTransforms() const {
  return children_->all<OrbReflectionTransform>();
}
unsigned int OrbCoordinates::removeReflectionTransforms() {
  return children_->removeAll<OrbReflectionTransform>(*this);
}

OrbObliqueTransform* OrbCoordinates::addObliqueTransform() { return children_->add<OrbObliqueTransform>(*this, atEnd); }
std::vector<OrbObliqueTransform*> OrbCoordinates::getObliqueTransforms() const {
  return children_->all<OrbObliqueTransform>();
}
unsigned int OrbCoordinates::removeObliqueTransforms() { return children_->removeAll<OrbObliqueTransform>(*this); }

OrbRectangularTransform* OrbCoordinates::addRectangularTransform() {
  return children_->add<OrbRectangularTransform>(*this, AfterRectangularTransforms{});
}
std::vector<OrbRectangularTransform*> OrbCoordinates::getRectangularTransforms() const {
  return children_->all<OrbRectangularTransform>();
}
unsigned int OrbCoordinates::removeRectangularTransforms() {
  return children_->removeAll<OrbRectangularTransform>(*this);
}

OrbMapProjection* OrbCoordinates::addMapProjection() { return children_->add<OrbMapProjection>(*this, atEnd); }
std::vector<OrbMapProjection*> OrbCoordinates::getMapProjections() const { return children_->all<OrbMapProjection>(); }
unsigned int OrbCoordinates::removeMapProjections() { return children_->removeAll<OrbMapProjection>(*this); }

OrbFishEyeTransform* OrbCoordinates::addFishEyeTransform() { return children_->add<OrbFishEyeTransform>(*this, atEnd); }
std::vector<OrbFishEyeTransform*> OrbCoordinates::getFishEyeTransforms() const {
  return children_->all<OrbFishEyeTransform>();
}
unsigned int OrbCoordinates::removeFishEyeTransforms() { return children_->removeAll<OrbFishEyeTransform>(*this); }

OrbFunctionalTransform* OrbCoordinates::addFunctionalTransform() {
  return children_->add<OrbFunctionalTransform>(*this, atEnd);
}
std::vector<OrbFunctionalTransform*> OrbCoordinates::getFunctionalTransforms() const {
  return children_->all<OrbFunctionalTransform>();
}
unsigned int OrbCoordinates::removeFunctionalTransforms() {
  return children_->removeAll<OrbFunctionalTransform>(*this);
}

OrbInsetTransform* OrbCoordinates::addInsetTransform() { return children_->add<OrbInsetTransform>(*this, atEnd); }
std::vector<OrbInsetTransform*> OrbCoordinates::getInsetTransforms() const {
  return children_->all<OrbInsetTransform>();
}
unsigned int OrbCoordinates::removeInsetTransforms() { return children_->removeAll<OrbInsetTransform>(*this); }

OrbPolarTransform* OrbCoordinates::addPolarTransform() {
  return children_->add<OrbPolarTransform>(*this, AfterPolarTransforms{});
}
std::vector<OrbPolarTransform*> OrbCoordinates::getPolarTransforms() const {
  return children_->all<OrbPolarTransform>();
}
unsigned int OrbCoordinates::removePolarTransforms() { return children_->removeAll<OrbPolarTransform>(*this); }

OrbSameRatioTransform* OrbCoordinates::addSameRatioTransform() {
  return children_->add<OrbSameRatioTransform>(*this, atEnd);
}
std::vector<OrbSameRatioTransform*> OrbCoordinates::getSameRatioTransforms() const {
  return children_->all<OrbSameRatioTransform>();
}
unsigned int OrbCoordinates::removeSameRatioTransforms() { return children_->removeAll<OrbSameRatioTransform>(*this); }

OrbTransposeTransform* OrbCoordinates::addTransposeTransform() {
  return children_->add<OrbTransposeTransform>(*this, AfterPolarTransforms{});
}
std::vector<OrbTransposeTransform*> OrbCoordinates::getTransposeTransforms() const {
  return children_->all<OrbTransposeTransform>();
}
unsigned int OrbCoordinates::removeTransposeTransforms() { return children_->removeAll<OrbTransposeTransform>(*this); }

OrbParallelCoordinatesTransform* OrbCoordinates::addParallelCoordinatesTransform() {
  return children_->add<OrbParallelCoordinatesTransform>(*this, atEnd);
}
std::vector<OrbParallelCoordinatesTransform*> OrbCoordinates::getParallelCoordinatesTransforms() const {
  return children_->all<OrbParallelCoordinatesTransform>();
}
unsigned int OrbCoordinates::removeParallelCoordinatesTransforms() {
  return children_->removeAll<OrbParallelCoordinatesTransform>(*this);
}
