// A variable computed from others, element `derivedVariable`.
#pragma once

#include "ctvariabletype.h"

/// A variable computed from others.
class ORBCHART_EXPORT OrbDerivedVariable : public CTVariableType {
public:
  static constexpr XMLCh _UTF_derivedVariable[] = u"derivedVariable";
  static constexpr const XMLCh* elementName = _UTF_derivedVariable;

  static constexpr XMLCh _UTF_language[] = u"language";

  explicit OrbDerivedVariable(xercesc::DOMElement* element);
  OrbDerivedVariable(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbDerivedVariable() override;

  /// The definition, in the language that `language` names.
  const XMLCh* getValue() const;
  void setValue(const XMLCh* value);
  void removeValue();

  const XMLCh* getLanguage() const;
  void setLanguage(const XMLCh* language);
  bool isLanguagePresent() const;
  void removeLanguage();
};
