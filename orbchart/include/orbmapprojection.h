// A map projection, element `mapProjection`.
#pragma once

#include "orbbaseelement.h"

/// Projects the globe onto the plane.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbMapProjection : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_mapProjection[] = u"mapProjection";
  static constexpr const XMLCh* elementName = _UTF_mapProjection;

  static constexpr XMLCh _UTF_type_transverseMercator[] = u"transverseMercator";
  static constexpr XMLCh _UTF_type_winkelTripel[] = u"winkelTripel";
  static constexpr XMLCh _UTF_type_local[] = u"local";

  enum ENUM_type : int {
    type_unset = 0,
    type_lambert = 1,
    type_mercator = 2,
    type_transverseMercator = 3,
    type_orthographic = 4,
    type_winkelTripel = 5,
    type_local = 6,
  };

  explicit OrbMapProjection(xercesc::DOMElement* element);
  ~OrbMapProjection() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The projection; 0 when absent.
  ENUM_type getType() const;
  void setType(ENUM_type type);
  bool isTypePresent() const;
  void removeType();
};
