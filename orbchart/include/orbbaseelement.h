// The base of every wrapper: the DOM element that it stands for, and the operations that all wrappers share.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

#include <string>
#include <vector>

class ChartString;
class OrbStyle;
class OrbVisualization;

/// A wrapper over one DOM element of a chart document.
///
/// A wrapper holds no data but the pointer to its element: what is written through it stands in the DOM at once, and
/// what is read comes from there. It owns nothing of the DOM, and ending a wrapper does not touch the DOM.
///
/// This holds for the operations of all wrappers where their own comments say nothing else:
/// - An absent attribute reads as the empty text, false, 0, 0.0 or the enumerator that ends in `_unset`, and so does a
///   text that is none of the attribute's kind. A reference to nothing, or to an element of another class, is null.
/// - A null or empty text and a number that is no keyword's write nothing: the attribute stays as it is. An id alone is
///   taken away by them. A reference to an object without an id is not written.
/// - Children are handed out in document order as loaded, then in the order of their addition, as a copy of the list:
///   ask once for a loop, not in each turn of it. The one of a family that has at most one is null when there is none.
/// - A remove of children returns how many there were and ends their wrappers and all wrappers below them. Their
///   elements stay in the memory of the document until it goes.
/// - The ids of removed children stay registered, and no new element should be given one of them, unless the remove
///   takes them off the children first. These do, and no others: `removeBlends`, `removeCrosss` and `removeNests` of
///   OrbBlend, OrbCross and OrbNest; `removeTransposeTransforms` of OrbCoordinates; `removeStyles` of OrbCycle;
///   `removeTexts` and `removeDescriptions` of OrbDescriptionGroup; all of OrbDimension; `removeFacetLevels` of
///   OrbFacetLayout; `removeAxiss` of OrbFacetLevel; all of OrbGraph but `removeExtensions`, `removeRectangleGuides`
///   and `removeElement`; `removeLocations` and `removeLabels` of OrbLabelFrame; `removeLocations`,
///   `removeLegendTargets` and `removeLabels` of OrbLegend; `removeGridlines` of OrbMajorTicks and OrbMinorTicks;
///   `removeStyles` of OrbStyle; `removeCycles` of OrbStyleCycle; and those of OrbVisualization for locations, sources
///   that take an id, source, derived and expression variables, domains, graphs, containers, legends, label frames,
///   styles, style cycles, pop-ups and drill-downs. The removes of a single child by its position do not, save
///   `removeEdge`.
/// - The text of an element is that of its text nodes: CDATA sections and entity references in it read as nothing.
/// \ingroup documents
class ORBCHART_EXPORT OrbBaseElement {
public:
  /// Every wrapper but this base registers itself on its element, in the place of one that stands there. A wrapper that
  /// a host makes over an element for itself leaves a registration behind when it ends, through which references find
  /// what is no more: a host that makes one makes it last, or keeps it as long as the document.
  explicit OrbBaseElement(xercesc::DOMElement* element);
  /// A second wrapper over the same element.
  OrbBaseElement(const OrbBaseElement& other);
  OrbBaseElement& operator=(const OrbBaseElement&) = delete;

  virtual ~OrbBaseElement();

  /// The element and everything under it as text in the encoding of the document, which is UTF-8 unless the document
  /// names another: indented, without XML declaration, with a line feed at the end, and with one at the beginning
  /// unless the element is out of the document.
  virtual std::string AsUTF8() const;

  xercesc::DOMElement* getImplementation() const;

  /// The text of an attribute in the DOM's own buffer; the empty string when the attribute is absent. Writing or
  /// removing the attribute ends the text, whose memory is used again.
  const XMLCh* GetAttribute(const XMLCh* name) const;

  /// Writes an attribute, in place of one of the same name, and returns it.
  ///
  /// A null or empty value, and a name that XML does not allow, write nothing and return null: the attribute that
  /// stands there keeps its value. The replaced attribute node goes back to the document.
  xercesc::DOMAttr* AddAttribute(const XMLCh* name, const XMLCh* value);
  /// The same as AddAttribute.
  xercesc::DOMAttr* SetAttribute(const XMLCh* name, const XMLCh* value);

  /// Adds a copy of each attribute of another node and returns how many that node has. An attribute with an empty
  /// value is counted and not copied.
  unsigned int importAttributes(const xercesc::DOMNode* from);

  /// Writes the `id` attribute and registers it, so that the document finds this element by it.
  ///
  /// Nothing is thrown for an id that is in use already: the second element is accepted. Where the parents of the two
  /// elements have different names, or this one has no parent, the log gets "Attempting to add an existing ID to an
  /// element (<id>)" and the places that there are; else nothing says so.
  ///
  /// A document has room for about 720,000 registrations, and one that is taken back gives no room back. The next one
  /// passes the XMLException of Xerces on, with the attribute written and not registered. Such a document can still be
  /// printed and ended, but no id can be looked up, given or taken in it any more: Xerces would crash.
  void addID(const XMLCh* id);
  bool doesIdExist(const XMLCh* id) const;

  /// The element that carries an id; null when none does. An element of a parsed document is found only if its `id`
  /// was marked as an ID attribute, by a validating parser or by `DOMElement::setIdAttribute`.
  xercesc::DOMElement* getElementById(const XMLCh* id) const;
  /// The style that carries an id; null when no style does.
  OrbStyle* getStyleById(const XMLCh* id) const;
  /// The wrapper of the document element; null when there is none.
  OrbVisualization* getVisualization() const;

  /// Puts a new child of this element in its place: directly before the first child element that is the element of one
  /// of the followers, else last. Null and this element itself do nothing.
  void InsertBefore(xercesc::DOMElement* child, std::vector<OrbBaseElement*>& followers);

  /// Takes the child's element out of this element; false for null and for a child of another element. The wrapper
  /// lives on and stays where it is held.
  bool removeChildElement(OrbBaseElement* child);

  /// Puts a comment ahead of all children. A null or empty text, and one with "--" in it, does nothing. A text that
  /// ends in "-" is taken, and what is printed of it is no XML.
  void setComment(const XMLCh* text);

  /// Raises "Can not add a <child> to a <parent> because <count> <existing>(s) already exist(s)." when count is above
  /// the limit.
  void throwIfChildExists(unsigned long count, unsigned long limit, const std::string& existing,
                          const std::string& child, const std::string& parent, const std::string& file,
                          unsigned int line) const;

  /// The text "Element <tag> found unknown child <name>(<xml>)", with this whole element as its XML.
  ChartString ChildNotFoundError(const XMLCh* name) const;

private:
  xercesc::DOMElement* element_;
};
