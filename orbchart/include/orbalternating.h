// The selection of alternating cells, element `alternating`.
#pragma once

#include "orbbaseelement.h"

/// A selection under OrbIntersect: every other one.
/// \ingroup graph
class ORBCHART_EXPORT OrbAlternating : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_alternating[] = u"alternating";
  static constexpr const XMLCh* elementName = _UTF_alternating;

  static constexpr XMLCh _UTF_odd[] = u"odd";

  explicit OrbAlternating(xercesc::DOMElement* element);
  ~OrbAlternating() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// Whether the odd ones are selected; false when absent.
  bool getOdd() const;
  void setOdd(bool odd);
  bool isOddPresent() const;
  void removeOdd();
};
