// The same ratio on all dimensions, element `sameRatioTransform`.
#pragma once

#include "orbbaseelement.h"

/// Keeps the same ratio on the dimensions.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbSameRatioTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_sameRatioTransform[] = u"sameRatioTransform";
  static constexpr const XMLCh* elementName = _UTF_sameRatioTransform;

  explicit OrbSameRatioTransform(xercesc::DOMElement* element);
  ~OrbSameRatioTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Whether the graph is centred; false when absent.
  bool getCenter() const;
  void setCenter(bool center);
  void removeCenter();
};
