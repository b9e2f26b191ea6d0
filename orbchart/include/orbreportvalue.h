// A value of a report, element `reportValue`.
#pragma once

#include "orbbaseelement.h"

/// A value of a variable of a report.
/// \ingroup data
class ORBCHART_EXPORT OrbReportValue : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_reportValue[] = u"reportValue";
  static constexpr const XMLCh* elementName = _UTF_reportValue;

  explicit OrbReportValue(xercesc::DOMElement* element);
  ~OrbReportValue() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The value, as text.
  const XMLCh* getValue() const;
  void setValue(const XMLCh* value);
  bool isValuePresent() const;
  void removeValue();
};
