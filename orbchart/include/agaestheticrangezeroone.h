// The range of an aesthetic as a view: its lowest and its highest value, as numbers.
#pragma once

#include "orbbaseelement.h"

/// A view of the `low` and `high` of an aesthetic's element: it makes no element and registers nothing. What is written
/// through it shows in the aesthetic at once. It must not outlive the element.
/// \ingroup aesthetics
class ORBCHART_EXPORT AGAestheticRangeZeroOne : public OrbBaseElement {
public:
  explicit AGAestheticRangeZeroOne(xercesc::DOMElement* element);
  /// A second view of the same element.
  AGAestheticRangeZeroOne(const AGAestheticRangeZeroOne& other);
  ~AGAestheticRangeZeroOne() override;

  /// The number of the lowest value, meant to be 0 to 1; nothing bounds it. 0.0 when absent.
  double getLow() const;
  void setLow(double low);
  void removeLow();

  /// The number of the highest value, in the same way.
  double getHigh() const;
  void setHigh(double high);
  void removeHigh();
};
