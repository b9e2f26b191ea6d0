// A self-organising map.
#include "orbsomstatistic.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Boolean sparse{OrbSOMStatistic::_UTF_sparse};

using Attributes = AttributeList<sparse>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSOMStatistic>() {
  return elementDescription<OrbSOMStatistic, Attributes>;
}

OrbSOMStatistic::OrbSOMStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbSOMStatistic::~OrbSOMStatistic() = default;

bool OrbSOMStatistic::getSparse() const { return sparse.get(*this); }
void OrbSOMStatistic::setSparse(bool value) { sparse.set(*this, value); }
bool OrbSOMStatistic::isSparsePresent() const { return sparse.isPresent(*this); }
void OrbSOMStatistic::removeSparse() { sparse.remove(*this); }
