// A collection of rows.
#include "orbcollectrowsstatistic.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbCollectRowsStatistic>() {
  return elementDescription<OrbCollectRowsStatistic, Attributes>;
}

OrbCollectRowsStatistic::OrbCollectRowsStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbCollectRowsStatistic::~OrbCollectRowsStatistic() = default;

const XMLCh* OrbCollectRowsStatistic::getId() const { return id.get(*this); }
void OrbCollectRowsStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbCollectRowsStatistic::removeId() { id.remove(*this); }
