// The range of an aesthetic as a view.
#include "agaestheticrangezeroone.h"

#include "attribute.h"

using namespace orbchart;

namespace {

constexpr Double low{OrbUni::_low};
constexpr Double high{OrbUni::_high};

} // namespace

AGAestheticRangeZeroOne::AGAestheticRangeZeroOne(xercesc::DOMElement* element) : OrbBaseElement(element) {}
AGAestheticRangeZeroOne::AGAestheticRangeZeroOne(const AGAestheticRangeZeroOne& other) = default;
AGAestheticRangeZeroOne::~AGAestheticRangeZeroOne() = default;

double AGAestheticRangeZeroOne::getLow() const { return low.get(*this); }
void AGAestheticRangeZeroOne::setLow(double value) { low.set(*this, value); }
void AGAestheticRangeZeroOne::removeLow() { low.remove(*this); }

double AGAestheticRangeZeroOne::getHigh() const { return high.get(*this); }
void AGAestheticRangeZeroOne::setHigh(double value) { high.set(*this, value); }
void AGAestheticRangeZeroOne::removeHigh() { high.remove(*this); }
