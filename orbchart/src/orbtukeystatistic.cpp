// The figures of a box plot.
#include "orbtukeystatistic.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbTukeyStatistic>() {
  return elementDescription<OrbTukeyStatistic, Attributes>;
}

OrbTukeyStatistic::OrbTukeyStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbTukeyStatistic::~OrbTukeyStatistic() = default;

const XMLCh* OrbTukeyStatistic::getId() const { return id.get(*this); }
void OrbTukeyStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbTukeyStatistic::removeId() { id.remove(*this); }
