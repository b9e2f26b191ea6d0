// An aggregation of the rows of a source, element `aggregate`.
#pragma once

#include "orbbaseelement.h"

/// An aggregation of the rows of a source by key variables, before they reach the chart.
/// \ingroup data
class ORBCHART_EXPORT OrbAggregate : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_aggregate[] = u"aggregate";
  static constexpr const XMLCh* elementName = _UTF_aggregate;

  static constexpr XMLCh _UTF_keyVariables[] = u"keyVariables";
  static constexpr XMLCh _UTF_generatedCount[] = u"generatedCount";
  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbAggregate(xercesc::DOMElement* element);
  OrbAggregate(xercesc::DOMElement* element, const XMLCh* keyVariables);
  ~OrbAggregate() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The variables that make the key, as one text that the library does not read.
  const XMLCh* getKeyVariables() const;
  void setKeyVariables(const XMLCh* keyVariables);
  bool isKeyVariablesPresent() const;
  void removeKeyVariables();

  /// The name of the variable that receives the row count.
  const XMLCh* getGeneratedCount() const;
  void setGeneratedCount(const XMLCh* generatedCount);
  bool isGeneratedCountPresent() const;
  void removeGeneratedCount();

  /// Free text, without a list of keywords.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();
};
