// Polar coordinates, element `polarTransform`.
#pragma once

#include "orbbaseelement.h"

/// Turns the space into polar coordinates. The coordinates keep it ahead of a rectangular transform and of an inset.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbPolarTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_polarTransform[] = u"polarTransform";
  static constexpr const XMLCh* elementName = _UTF_polarTransform;

  explicit OrbPolarTransform(xercesc::DOMElement* element);
  ~OrbPolarTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The angle at which the circle begins; 0 when absent.
  double getStartAngle() const;
  void setStartAngle(double startAngle);
  void removeStartAngle();

  /// How many times the circle is run through; 0 when absent.
  double getCycles() const;
  void setCycles(double cycles);
  void removeCycles();

  /// Whether the circle runs against the clock; false when absent.
  bool getCounterClockwise() const;
  void setCounterClockwise(bool counterClockwise);
  void removeCounterClockwise();
};
