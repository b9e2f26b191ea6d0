// Links between points, element `linkStatistic`.
#pragma once

#include "orbbaseelement.h"

/// Draws links between points by a rule.
/// \ingroup statistics
class ORBCHART_EXPORT OrbLinkStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_linkStatistic[] = u"linkStatistic";
  static constexpr const XMLCh* elementName = _UTF_linkStatistic;

  static constexpr XMLCh _UTF_type_byDimension[] = u"byDimension";
  static constexpr XMLCh _UTF_type_minimalSpanningTree[] = u"minimalSpanningTree";
  static constexpr XMLCh _UTF_type_nearestNeighbor[] = u"nearestNeighbor";
  static constexpr XMLCh _UTF_type_hull[] = u"hull";
  static constexpr XMLCh _UTF_type_join[] = u"join";
  static constexpr XMLCh _UTF_type_sequence[] = u"sequence";
  static constexpr XMLCh _UTF_type_delaunay[] = u"delaunay";
  static constexpr XMLCh _UTF_type_tsp[] = u"tsp";
  static constexpr XMLCh _UTF_type_gabriel[] = u"gabriel";
  static constexpr XMLCh _UTF_type_relativeNeighborhood[] = u"relativeNeighborhood";
  static constexpr XMLCh _UTF_type_influence[] = u"influence";
  static constexpr XMLCh _UTF_neighborCount[] = u"neighborCount";

  // For hosts; no operation reads them. The last is no keyword of the type.
  static constexpr XMLCh OrbLinkStatistic_byDimension[] = u"byDimension";
  static constexpr XMLCh OrbLinkStatistic_complete[] = u"complete";
  static constexpr XMLCh OrbLinkStatistic_hull[] = u"hull";
  static constexpr XMLCh OrbLinkStatistic_nearestNeighbor[] = u"nearestNeighbor";
  static constexpr XMLCh OrbLinkStatistic_minimalSpanning[] = u"minimalSpanning";

  enum ENUM_type : int {
    type_unset = 0,
    type_byDimension = 1,
    type_complete = 2,
    type_minimalSpanningTree = 3,
    type_nearestNeighbor = 4,
    type_hull = 5,
    type_join = 6,
    type_sequence = 7,
    type_delaunay = 8,
    type_tsp = 9,
    type_alpha = 10,
    type_gabriel = 11,
    type_relativeNeighborhood = 12,
    type_knn = 13,
    type_distance = 14,
    type_influence = 15,
  };

  enum ENUM_location : int {
    location_unset = 0,
    location_centroid = 1,
    location_base = 2,
    location_origin = 3,
    location_midrange = 4,
  };

  explicit OrbLinkStatistic(xercesc::DOMElement* element);
  ~OrbLinkStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The rule; 0 when absent.
  ENUM_type getType() const;
  void setType(ENUM_type type);
  bool isTypePresent() const;
  void removeType();

  /// Where on the first coordinate a link touches; 0 when absent. One enumeration serves the three.
  ENUM_location getX() const;
  void setX(ENUM_location x);
  void removeX();

  ENUM_location getY() const;
  void setY(ENUM_location y);
  void removeY();

  ENUM_location getZ() const;
  void setZ(ENUM_location z);
  void removeZ();

  /// The number of neighbours that are linked.
  unsigned int getNeighborCount() const;
  void setNeighborCount(unsigned int neighborCount);
  bool isNeighborCountPresent() const;
  void removeNeighborCount();

  /// The distance within which points are linked.
  double getRadius() const;
  void setRadius(double radius);
  bool isRadiusPresent() const;
  void removeRadius();
};
