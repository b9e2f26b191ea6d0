// A plane laid over a graph, element `planeGuide`.
#pragma once

#include "ctguidetype.h"

/// A plane laid over a graph.
/// \ingroup guides
class ORBCHART_EXPORT OrbPlaneGuide : public CTGuideType {
public:
  static constexpr XMLCh _UTF_planeGuide[] = u"planeGuide";
  static constexpr const XMLCh* elementName = _UTF_planeGuide;

  enum ENUM_normal : int {
    normal_x = 0,
    normal_y = 1,
    normal_z = 2,
  };

  explicit OrbPlaneGuide(xercesc::DOMElement* element);
  ~OrbPlaneGuide() override;

  /// The dimension that stands upright on the plane; "x" when absent.
  ENUM_normal getNormal() const;
  void setNormal(ENUM_normal normal);
  void removeNormal();
};
