// A collection of rows.
#include "orbcollectrowsstatistic.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbCollectRowsStatistic::OrbCollectRowsStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbCollectRowsStatistic::~OrbCollectRowsStatistic() = default;

const XMLCh* OrbCollectRowsStatistic::getId() const { return GetAttribute(OrbUni::_id); }
void OrbCollectRowsStatistic::setId(const XMLCh* id) { writeId(*this, id); }
void OrbCollectRowsStatistic::removeId() { removeAttribute(*this, OrbUni::_id); }
