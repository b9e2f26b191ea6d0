// A clustering of rows.
#include "orbclusteringstatistic.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Text variables{OrbClusteringStatistic::_UTF_variables};

using Attributes = AttributeList<variables>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbClusteringStatistic>() {
  return elementDescription<OrbClusteringStatistic, Attributes>;
}

OrbClusteringStatistic::OrbClusteringStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbClusteringStatistic::~OrbClusteringStatistic() = default;

const XMLCh* OrbClusteringStatistic::getVariables() const { return variables.get(*this); }
void OrbClusteringStatistic::setVariables(const XMLCh* value) { variables.set(*this, value); }
bool OrbClusteringStatistic::isVariablesPresent() const { return variables.isPresent(*this); }
void OrbClusteringStatistic::removeVariables() { variables.remove(*this); }
