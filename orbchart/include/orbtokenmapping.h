// What fills a token of a pop-up, element `tokenMapping`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTVariableType;
class OrbFormat;
class OrbSummaryStatistic;

/// Says which variable fills a token of a pop-up's template, and how. An unknown child element raises at a load.
/// \ingroup interaction
class ORBCHART_EXPORT OrbTokenMapping : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_tokenMapping[] = u"tokenMapping";
  static constexpr const XMLCh* elementName = _UTF_tokenMapping;

  static constexpr XMLCh _UTF_columnToken[] = u"columnToken";
  static constexpr XMLCh _UTF_valueToken[] = u"valueToken";

  explicit OrbTokenMapping(xercesc::DOMElement* element);
  OrbTokenMapping(xercesc::DOMElement* element, const CTVariableType& variable);
  ~OrbTokenMapping() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The variable: a source, derived or expression variable, else null.
  CTVariableType* getVariable() const;
  void setVariable(const CTVariableType& variable);
  bool isVariablePresent() const;
  void removeVariable();

  /// The token for the name of the variable.
  const XMLCh* getColumnToken() const;
  void setColumnToken(const XMLCh* columnToken);
  bool isColumnTokenPresent() const;
  void removeColumnToken();

  /// The token for its value.
  const XMLCh* getValueToken() const;
  void setValueToken(const XMLCh* valueToken);
  bool isValueTokenPresent() const;
  void removeValueToken();

  /// The summaries of the values, in the order of addition among the formats.
  OrbSummaryStatistic* addSummaryStatistic();
  std::vector<OrbSummaryStatistic*> getSummaryStatistics() const;
  unsigned int removeSummaryStatistics();

  /// How the value is printed.
  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
