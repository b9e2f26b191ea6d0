// The control of layers.
#include "orblayercontroller.h"

#include "attribute.h"
#include "loading.h"
#include "orbdatabasesource.h"
#include "orbdelimitedfilesource.h"
#include "orbembeddedsource.h"
#include "orbfaceting.h"
#include "orblabel.h"
#include "orbreshapesource.h"
#include "orbsavfilesource.h"
#include "orbuni.h"
#include "orbusersource.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr ReferenceTo<OrbBaseElement, OrbFaceting, OrbLabel> target{OrbUni::_target};
constexpr ReferenceTo<OrbBaseElement, OrbEmbeddedSource, OrbUserSource, OrbDelimitedFileSource, OrbDatabaseSource,
                      OrbReshapeSource, OrbSavFileSource>
    source{OrbUni::_source};

using Attributes = AttributeList<target, source>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLayerController>() {
  return elementDescription<OrbLayerController, DerivedFrom<CTInteraction>, Attributes>;
}

OrbLayerController::OrbLayerController(xercesc::DOMElement* element) : CTInteraction(element) { bindLeaf(*this); }
OrbLayerController::~OrbLayerController() = default;

OrbFaceting* OrbLayerController::getFacetingTarget() const { return target.getAs<OrbFaceting>(*this); }
OrbLabel* OrbLayerController::getLabelTarget() const { return target.getAs<OrbLabel>(*this); }
void OrbLayerController::setTarget(const OrbFaceting& newTarget) { target.set(*this, newTarget); }
void OrbLayerController::setTarget(const OrbLabel& newTarget) { target.set(*this, newTarget); }
bool OrbLayerController::isTargetPresent() const { return target.isPresent(*this); }
void OrbLayerController::removeTarget() { target.remove(*this); }

OrbBaseElement* OrbLayerController::getSource() const { return source.get(*this); }
void OrbLayerController::setSource(const OrbEmbeddedSource& target) { source.set(*this, target); }
void OrbLayerController::setSource(const OrbUserSource& target) { source.set(*this, target); }
void OrbLayerController::setSource(const OrbDelimitedFileSource& target) { source.set(*this, target); }
void OrbLayerController::setSource(const OrbDatabaseSource& target) { source.set(*this, target); }
void OrbLayerController::setSource(const OrbReshapeSource& target) { source.set(*this, target); }
void OrbLayerController::setSource(const OrbSavFileSource& target) { source.set(*this, target); }
bool OrbLayerController::isSourcePresent() const { return source.isPresent(*this); }
void OrbLayerController::removeSource() { source.remove(*this); }
