// A reference to a dimension, element `dimensionReference`.
#pragma once

#include "orbbaseelement.h"

class OrbDimension;

/// A reference to a dimension that stands elsewhere in the document. It has no id.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbDimensionReference : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_dimensionReference[] = u"dimensionReference";
  static constexpr const XMLCh* elementName = _UTF_dimensionReference;

  static constexpr XMLCh _ref[] = u"ref";

  explicit OrbDimensionReference(xercesc::DOMElement* element);
  OrbDimensionReference(xercesc::DOMElement* element, const OrbDimension& dimension);
  ~OrbDimensionReference() override;

  OrbDimension* getRef() const;
  void setRef(const OrbDimension& dimension);
  void removeRef();
};
