// One value of a derived variable in the place of another, element `valueMapEntry`.
#pragma once

#include "orbbaseelement.h"

/// Maps a value of the variables that a derived variable depends on onto one of its own.
/// \ingroup variables
class ORBCHART_EXPORT OrbValueMapEntry : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_valueMapEntry[] = u"valueMapEntry";
  static constexpr const XMLCh* elementName = _UTF_valueMapEntry;

  explicit OrbValueMapEntry(xercesc::DOMElement* element);
  ~OrbValueMapEntry() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The value that is mapped, as text.
  const XMLCh* getFrom() const;
  void setFrom(const XMLCh* from);
  bool isFromPresent() const;
  void removeFrom();

  /// The value in its place, as text.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
  bool isToPresent() const;
  void removeTo();
};
