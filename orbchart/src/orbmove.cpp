// The improvement step of a graph layout that moves nodes.
#include "orbmove.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Double initialDistance{OrbMove::_UTF_initialDistance};
constexpr Double reductionFactor{OrbMove::_UTF_reductionFactor};

using Attributes = AttributeList<initialDistance, reductionFactor>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbMove>() {
  return elementDescription<OrbMove, DerivedFrom<CTImproveLayout>, Attributes>;
}

OrbMove::OrbMove(xercesc::DOMElement* element) : CTImproveLayout(element) { bindLeaf(*this); }
OrbMove::~OrbMove() = default;

double OrbMove::getInitialDistance() const { return initialDistance.get(*this); }
void OrbMove::setInitialDistance(double value) { initialDistance.set(*this, value); }
void OrbMove::removeInitialDistance() { initialDistance.remove(*this); }

double OrbMove::getReductionFactor() const { return reductionFactor.get(*this); }
void OrbMove::setReductionFactor(double value) { reductionFactor.set(*this, value); }
void OrbMove::removeReductionFactor() { reductionFactor.remove(*this); }
