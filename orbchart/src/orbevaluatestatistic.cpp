// An evaluation at a point.
#include "orbevaluatestatistic.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbEvaluateStatistic::OrbEvaluateStatistic(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbEvaluateStatistic::OrbEvaluateStatistic(DOMElement* element, const XMLCh* x) : OrbEvaluateStatistic(element) {
  setX(x);
}
OrbEvaluateStatistic::~OrbEvaluateStatistic() = default;

const XMLCh* OrbEvaluateStatistic::getId() const { return GetAttribute(OrbUni::_id); }
void OrbEvaluateStatistic::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbEvaluateStatistic::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbEvaluateStatistic::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbEvaluateStatistic::getX() const { return GetAttribute(OrbUni::_x); }
void OrbEvaluateStatistic::setX(const XMLCh* x) { SetAttribute(OrbUni::_x, x); }
bool OrbEvaluateStatistic::isXPresent() const { return isPresent(*this, OrbUni::_x); }
void OrbEvaluateStatistic::removeX() { removeAttribute(*this, OrbUni::_x); }
