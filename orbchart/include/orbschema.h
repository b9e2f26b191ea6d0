// Box plots, element `schema`.
#pragma once

#include "ctelementtype.h"

/// A schematic summary of a distribution, such as a box plot.
/// \ingroup elements
class ORBCHART_EXPORT OrbSchema : public CTElementType {
public:
  static constexpr XMLCh _UTF_schema[] = u"schema";
  static constexpr const XMLCh* elementName = _UTF_schema;

  static constexpr XMLCh _UTF_medianStyle[] = u"medianStyle";
  static constexpr XMLCh _UTF_fenceStyle[] = u"fenceStyle";
  static constexpr XMLCh _UTF_hingeStyle[] = u"hingeStyle";
  static constexpr XMLCh _UTF_outlierStyle[] = u"outlierStyle";
  static constexpr XMLCh _UTF_extremeStyle[] = u"extremeStyle";

  explicit OrbSchema(xercesc::DOMElement* element);
  OrbSchema(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbSchema() override;

  OrbStyle* getMedianStyle() const;
  void setMedianStyle(const OrbStyle& style);
  void removeMedianStyle();

  OrbStyle* getFenceStyle() const;
  void setFenceStyle(const OrbStyle& style);
  void removeFenceStyle();

  OrbStyle* getHingeStyle() const;
  void setHingeStyle(const OrbStyle& style);
  void removeHingeStyle();

  OrbStyle* getOutlierStyle() const;
  void setOutlierStyle(const OrbStyle& style);
  void removeOutlierStyle();

  OrbStyle* getExtremeStyle() const;
  void setExtremeStyle(const OrbStyle& style);
  void removeExtremeStyle();
};
