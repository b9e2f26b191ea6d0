// The range of an aesthetic as a view: its lowest and its highest value, as lengths.
#pragma once

#include "orbbaseelement.h"

/// A view of the `low` and `high` of an aesthetic's element: it makes no element and registers nothing. What is written
/// through it shows in the aesthetic at once. It must not outlive the element.
/// \ingroup aesthetics
class ORBCHART_EXPORT AGAestheticRangeLengths : public OrbBaseElement {
public:
  explicit AGAestheticRangeLengths(xercesc::DOMElement* element);
  /// A second view of the same element.
  AGAestheticRangeLengths(const AGAestheticRangeLengths& other);
  ~AGAestheticRangeLengths() override;

  /// The length of the lowest value, with its unit if any. The setter with a number writes it without a unit.
  const XMLCh* getLow() const;
  void setLow(const XMLCh* low);
  void setLow(double low);
  void removeLow();

  /// The length of the highest value, in the same way.
  const XMLCh* getHigh() const;
  void setHigh(const XMLCh* high);
  void setHigh(double high);
  void removeHigh();
};
