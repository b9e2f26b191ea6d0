// The control of pivoting.
#include "orbpivotcontroller.h"

#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbPivotController>() {
  return elementDescription<OrbPivotController, DerivedFrom<CTInteraction>>;
}

OrbPivotController::OrbPivotController(xercesc::DOMElement* element) : CTInteraction(element) { bindLeaf(*this); }
OrbPivotController::~OrbPivotController() = default;
