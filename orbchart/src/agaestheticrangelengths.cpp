// The range of an aesthetic as a view.
#include "agaestheticrangelengths.h"

#include "attribute.h"

using namespace orbchart;

namespace {

constexpr Text low{OrbUni::_low};
constexpr Text high{OrbUni::_high};

} // namespace

AGAestheticRangeLengths::AGAestheticRangeLengths(xercesc::DOMElement* element) : OrbBaseElement(element) {}
AGAestheticRangeLengths::AGAestheticRangeLengths(const AGAestheticRangeLengths& other) = default;
AGAestheticRangeLengths::~AGAestheticRangeLengths() = default;

const XMLCh* AGAestheticRangeLengths::getLow() const { return low.get(*this); }
void AGAestheticRangeLengths::setLow(const XMLCh* value) { low.set(*this, value); }
void AGAestheticRangeLengths::setLow(double value) { writeDouble(*this, low.name, value); } // the number alone
void AGAestheticRangeLengths::removeLow() { low.remove(*this); }

const XMLCh* AGAestheticRangeLengths::getHigh() const { return high.get(*this); }
void AGAestheticRangeLengths::setHigh(const XMLCh* value) { high.set(*this, value); }
void AGAestheticRangeLengths::setHigh(double value) { writeDouble(*this, high.name, value); } // the number alone
void AGAestheticRangeLengths::removeHigh() { high.remove(*this); }
