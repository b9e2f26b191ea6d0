// One label in place of another, element `relabel`.
#pragma once

#include "orbbaseelement.h"

/// Puts one label in place of another.
///
/// The constructors do not register the wrapper on its element: unless init() is called, the element carries no
/// wrapper.
/// \ingroup style
class ORBCHART_EXPORT OrbRelabel : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_relabel[] = u"relabel";
  static constexpr const XMLCh* elementName = _UTF_relabel;

  explicit OrbRelabel(xercesc::DOMElement* element);
  OrbRelabel(xercesc::DOMElement* element, const XMLCh* from, const XMLCh* to);
  ~OrbRelabel() override;

  /// Registers the wrapper on its element.
  void init();

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The label that is replaced.
  const XMLCh* getFrom() const;
  void setFrom(const XMLCh* from);

  /// The label that stands in its place. An empty text is written, unlike elsewhere, and null as an empty text: a label
  /// can be replaced by nothing.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
};
