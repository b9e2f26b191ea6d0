// A function that acts on a frame.
#include "orbswingcontroller.h"

#include "attribute.h"
#include "ctframe.h"
#include "loading.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

// Nothing leads to the wrapper of a frame.
// The getter finds no wrapper.
constexpr AnyReference target{OrbUni::_target};
constexpr Text function{OrbUni::_function};

using Attributes = AttributeList<target, function>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSwingController>() {
  return elementDescription<OrbSwingController, DerivedFrom<CTInteraction>, Attributes>;
}

OrbSwingController::OrbSwingController(xercesc::DOMElement* element) : CTInteraction(element) { bindLeaf(*this); }
OrbSwingController::~OrbSwingController() = default;

CTFrame* OrbSwingController::getTarget() const { return nullptr; }
void OrbSwingController::setTarget(const XMLCh* newTarget) { SetAttribute(target.name, newTarget); } // an id as text
void OrbSwingController::setTarget(const CTFrame& newTarget) { target.set(*this, newTarget); }
bool OrbSwingController::isTargetPresent() const { return target.isPresent(*this); }
void OrbSwingController::removeTarget() { target.remove(*this); }

const XMLCh* OrbSwingController::getFunction() const { return function.get(*this); }
void OrbSwingController::setFunction(const XMLCh* value) { function.set(*this, value); }
bool OrbSwingController::isFunctionPresent() const { return function.isPresent(*this); }
void OrbSwingController::removeFunction() { function.remove(*this); }
