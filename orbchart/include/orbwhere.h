// A condition on the values of a variable, element `where`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;

/// A condition on the values of one variable. It may hold both lists of values: nothing decides between them here.
/// \ingroup graph
class ORBCHART_EXPORT OrbWhere : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_where[] = u"where";
  static constexpr const XMLCh* elementName = _UTF_where;

  static constexpr XMLCh _UTF_include[] = u"include";
  static constexpr XMLCh _UTF_exclude[] = u"exclude";

  explicit OrbWhere(xercesc::DOMElement* element);
  ~OrbWhere() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The variable: a source, derived or expression variable, else null.
  CTVariableType* getVariable() const;
  void setVariable(const CTVariableType& variable);
  bool isVariablePresent() const;
  void removeVariable();

  /// The values to keep, as one text that the library does not read.
  const XMLCh* getInclude() const;
  void setInclude(const XMLCh* include);
  bool isIncludePresent() const;
  void removeInclude();

  /// The values to drop, as one text that the library does not read.
  const XMLCh* getExclude() const;
  void setExclude(const XMLCh* exclude);
  bool isExcludePresent() const;
  void removeExclude();
};
