// Maps a value onto a footnote, element `footnoteMapping`.
#pragma once

#include "orbbaseelement.h"

/// Maps a value of the data onto a footnote.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbFootnoteMapping : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_footnoteMapping[] = u"footnoteMapping";
  static constexpr const XMLCh* elementName = _UTF_footnoteMapping;

  static constexpr XMLCh _UTF_definesReference[] = u"definesReference";

  explicit OrbFootnoteMapping(xercesc::DOMElement* element);
  OrbFootnoteMapping(xercesc::DOMElement* element, const XMLCh* from, const XMLCh* to);
  ~OrbFootnoteMapping() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The value of the data, as text.
  const XMLCh* getFrom() const;
  void setFrom(const XMLCh* from);
  bool isFromPresent() const;
  void removeFrom();

  /// The footnote.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
  bool isToPresent() const;
  void removeTo();

  /// The name by which other texts refer to the footnote.
  const XMLCh* getDefinesReference() const;
  void setDefinesReference(const XMLCh* definesReference);
  bool isDefinesReferencePresent() const;
  void removeDefinesReference();
};
