// The improvement step of a graph layout that works at random.
#include "orbrandomize.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Unsigned failuresNeededToStop{OrbRandomize::_UTF_failuresNeededToStop};

using Attributes = AttributeList<failuresNeededToStop>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRandomize>() {
  return elementDescription<OrbRandomize, DerivedFrom<CTImproveLayout>, Attributes>;
}

OrbRandomize::OrbRandomize(xercesc::DOMElement* element) : CTImproveLayout(element) { bindLeaf(*this); }
OrbRandomize::~OrbRandomize() = default;

unsigned int OrbRandomize::getFailuresNeededToStop() const { return failuresNeededToStop.get(*this); }
void OrbRandomize::setFailuresNeededToStop(unsigned int value) { failuresNeededToStop.set(*this, value); }
void OrbRandomize::removeFailuresNeededToStop() { failuresNeededToStop.remove(*this); }
