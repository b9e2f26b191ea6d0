// Splits a graphic element by a variable.
#include "orbsplit.h"

#include "loading.h"

using namespace orbchart;

OrbSplit::OrbSplit(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbSplit::~OrbSplit() = default;
