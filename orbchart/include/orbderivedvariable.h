// A variable computed from others, element `derivedVariable`.
#pragma once

#include "ctvariabletype.h"

#include <memory>

class OrbValueMapEntry;

/// A variable computed from others.
/// \ingroup variables
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

  /// The values that are mapped one by one. The remove ends the wrappers, leaves the elements in the document and
  /// answers 0: they have wrappers again when the document is loaded again.
  OrbValueMapEntry* addValueMapEntry();
  std::vector<OrbValueMapEntry*> getValueMapEntrys() const;
  unsigned int removeValueMapEntrys();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
