// A variable read from a source, element `sourceVariable`.
#pragma once

#include "ctvariabletype.h"

/// A variable read from a source.
/// \ingroup variables
class ORBCHART_EXPORT OrbSourceVariable : public CTVariableType {
public:
  static constexpr XMLCh _UTF_sourceVariable[] = u"sourceVariable";
  static constexpr const XMLCh* elementName = _UTF_sourceVariable;

  static constexpr XMLCh _UTF_originalSourceName[] = u"originalSourceName";

  explicit OrbSourceVariable(xercesc::DOMElement* element);
  OrbSourceVariable(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbSourceVariable() override;

  /// The name of the column in the source.
  const XMLCh* getSourceName() const;
  void setSourceName(const XMLCh* sourceName);
  void removeSourceName();

  const XMLCh* getOriginalSourceName() const;
  void setOriginalSourceName(const XMLCh* originalSourceName);
  bool isOriginalSourceNamePresent() const;
  void removeOriginalSourceName();

  /// The pattern by which the text of the source is read as a date.
  const XMLCh* getInputDateFormatPattern() const;
  void setInputDateFormatPattern(const XMLCh* inputDateFormatPattern);
  bool isInputDateFormatPatternPresent() const;
  void removeInputDateFormatPattern();
};
