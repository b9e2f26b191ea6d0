// An exchange of two dimensions, element `transposeTransform`.
#pragma once

#include "orbbaseelement.h"

/// Swaps two dimensions. The coordinates keep it ahead of a rectangular transform and of an inset.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbTransposeTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_transposeTransform[] = u"transposeTransform";
  static constexpr const XMLCh* elementName = _UTF_transposeTransform;

  static constexpr XMLCh _UTF_dimension1[] = u"dimension1";
  static constexpr XMLCh _UTF_dimension2[] = u"dimension2";

  explicit OrbTransposeTransform(xercesc::DOMElement* element);
  ~OrbTransposeTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The numbers of the two dimensions; 0 when absent. A 0 that is written is present.
  unsigned int getDimension1() const;
  void setDimension1(unsigned int dimension1);
  bool isDimension1Present() const;
  void removeDimension1();

  unsigned int getDimension2() const;
  void setDimension2(unsigned int dimension2);
  bool isDimension2Present() const;
  void removeDimension2();
};
