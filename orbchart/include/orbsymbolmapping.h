// Maps a value onto a symbol, element `symbolMapping`.
#pragma once

#include "orbbaseelement.h"

/// Maps a value of the data onto a symbol.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbSymbolMapping : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_symbolMapping[] = u"symbolMapping";
  static constexpr const XMLCh* elementName = _UTF_symbolMapping;

  explicit OrbSymbolMapping(xercesc::DOMElement* element);
  OrbSymbolMapping(xercesc::DOMElement* element, const XMLCh* from, const XMLCh* to);
  ~OrbSymbolMapping() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The value of the data, as text.
  const XMLCh* getFrom() const;
  void setFrom(const XMLCh* from);
  void removeFrom();

  /// The name of a symbol as OrbStyle has them, taken as it comes.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
  void removeTo();
};
