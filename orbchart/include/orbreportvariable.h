// A variable of a report, element `reportVariable`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbReportValue;

/// A variable of a report, with its values. An unknown child element raises at a load.
/// \ingroup data
class ORBCHART_EXPORT OrbReportVariable : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_reportVariable[] = u"reportVariable";
  static constexpr const XMLCh* elementName = _UTF_reportVariable;

  explicit OrbReportVariable(xercesc::DOMElement* element);
  ~OrbReportVariable() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The name of the variable.
  const XMLCh* getName() const;
  void setName(const XMLCh* name);
  bool isNamePresent() const;
  void removeName();

  /// The values of the variable.
  OrbReportValue* addReportValue();
  std::vector<OrbReportValue*> getReportValues() const;
  unsigned int removeReportValues();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
