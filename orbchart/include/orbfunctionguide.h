// The curve of a function, element `functionGuide`.
#pragma once

#include "ctguidetype.h"

class OrbCoordinates;

/// The curve of a function, drawn in segments.
/// \ingroup guides
class ORBCHART_EXPORT OrbFunctionGuide : public CTGuideType {
public:
  static constexpr XMLCh _UTF_functionGuide[] = u"functionGuide";
  static constexpr const XMLCh* elementName = _UTF_functionGuide;

  static constexpr XMLCh _UTF_expandToFit[] = u"expandToFit";

  explicit OrbFunctionGuide(xercesc::DOMElement* element);
  ~OrbFunctionGuide() override;

  /// The number of segments; 0 when absent.
  unsigned int getSegments() const;
  void setSegments(unsigned int segments);
  bool isSegmentsPresent() const;
  void removeSegments();

  /// The function, free text.
  const XMLCh* getValue() const;
  void setValue(const XMLCh* value);
  bool isValuePresent() const;
  void removeValue();

  /// Whether the space grows to hold the guide; false when absent.
  bool getExpandToFit() const;
  void setExpandToFit(bool expandToFit);
  bool isExpandToFitPresent() const;
  void removeExpandToFit();

  /// The coordinate system that the guide is drawn in.
  OrbCoordinates* getCoordinates() const;
  void setCoordinates(const OrbCoordinates& coordinates);
  bool isCoordinatesPresent() const;
  void removeCoordinates();
};
