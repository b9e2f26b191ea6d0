// An aggregation of rows.
#include "orbaggregatestatistic.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbAggregateStatistic::OrbAggregateStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbAggregateStatistic::~OrbAggregateStatistic() = default;

const XMLCh* OrbAggregateStatistic::getId() const { return GetAttribute(OrbUni::_id); }
void OrbAggregateStatistic::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbAggregateStatistic::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbAggregateStatistic::removeId() { removeAttribute(*this, OrbUni::_id); }
