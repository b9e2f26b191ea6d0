// An aggregation of rows.
#include "orbaggregatestatistic.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAggregateStatistic>() {
  return elementDescription<OrbAggregateStatistic, Attributes>;
}

OrbAggregateStatistic::OrbAggregateStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbAggregateStatistic::~OrbAggregateStatistic() = default;

const XMLCh* OrbAggregateStatistic::getId() const { return id.get(*this); }
void OrbAggregateStatistic::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbAggregateStatistic::isIdPresent() const { return id.isPresent(*this); }
void OrbAggregateStatistic::removeId() { id.remove(*this); }
