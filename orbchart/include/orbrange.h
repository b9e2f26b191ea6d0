// A range of values, element `range`.
#pragma once

#include "orbbaseelement.h"

/// A range of values.
/// \ingroup variables
class ORBCHART_EXPORT OrbRange : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_range[] = u"range";
  static constexpr const XMLCh* elementName = _UTF_range;

  explicit OrbRange(xercesc::DOMElement* element);
  ~OrbRange() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The ends of the range, as text: a number and a date go alike.
  const XMLCh* getMin() const;
  void setMin(const XMLCh* min);
  void removeMin();

  const XMLCh* getMax() const;
  void setMax(const XMLCh* max);
  void removeMax();

  /// Whether the ends are kept as they stand; false when absent.
  bool getExact() const;
  void setExact(bool exact);
  void removeExact();
};
