// Maps a value onto a number, element `integerMapping`.
#pragma once

#include "orbbaseelement.h"

/// Maps a value of the data onto a number.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbIntegerMapping : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_integerMapping[] = u"integerMapping";
  static constexpr const XMLCh* elementName = _UTF_integerMapping;

  explicit OrbIntegerMapping(xercesc::DOMElement* element);
  OrbIntegerMapping(xercesc::DOMElement* element, const XMLCh* from, unsigned int to);
  ~OrbIntegerMapping() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The value of the data, as text.
  const XMLCh* getFrom() const;
  void setFrom(const XMLCh* from);
  void removeFrom();

  /// The number; 0 when absent.
  unsigned int getTo() const;
  void setTo(unsigned int to);
  void removeTo();
};
