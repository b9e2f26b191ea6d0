// A chart document: the DOM and the root wrapper over it.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

#include <string>

class OrbVisualization;

/// What a host holds of a chart. The XML platform is up while it lives.
///
/// A host that catches exceptions keeps the platform up around the `try` as well: Xerces' exceptions end in memory that
/// belongs to the platform, and one that leaves the scope of the only OrbDocument would outlive it.
///
/// These are thrown: OrbException by the operations of this library, with the words that they name;
/// xercesc::DOMException by whatever writes to the DOM, when the host has put an element where it cannot be;
/// xercesc::XMLException by OrbBaseElement::addID, and so by every setter of an id, when a document has room for no
/// more of them, and by what prints in an encoding that Xerces does not know; std::bad_alloc and
/// xercesc::OutOfMemoryException by all. A parser of the host throws xercesc::SAXException and xercesc::XMLException
/// beside. None of Xerces' four derives from std::exception, and OutOfMemoryException and DOMException derive from none
/// of the others.
/// \ingroup documents
class ORBCHART_EXPORT OrbDocument {
public:
  /// A new, empty document, which goes with this object. Handlers of user data that the host put on its nodes are not
  /// called then.
  OrbDocument();

  /// Wraps a DOM that the host's parser made. The host keeps the DOM and its parser, and keeps both until this object
  /// has gone. The registrations of this object's wrappers stay on the elements: when the DOM is wrapped again,
  /// references must lead to no element that the new load does not see. A second OrbDocument over the DOM takes the
  /// registrations of the first over and leaves them behind when it ends: keep one at a time, or end the first one
  /// first.
  ///
  /// The whole tree is wrapped at once. An unknown element raises the text of OrbBaseElement::ChildNotFoundError,
  /// except under variables, aesthetics and formats, which pass it over, and under elements that look at no child;
  /// elements nested too deep raise "Elements are nested more than 10240 levels deep below visualization."; a null
  /// pointer and a document without a root raise what they are. When it raises, the DOM is as it was. The root is taken
  /// for a visualization whatever its name is, and neither unknown attributes nor texts that are no keyword or number
  /// are refused. How deep the document is does not matter to the stack.
  ///
  /// References find only elements whose `id` was marked as an ID attribute: by a parser that validates, or by the
  /// host with `DOMElement::setIdAttribute` before this call or after. ChartReader does all this; a host with a parser
  /// of its own, which keeps the platform up, does it so:
  ///
  /// \code
  /// xercesc::XercesDOMParser parser;
  /// xercesc::HandlerBase errors; // throws; without one, a broken file is half a document or none
  /// parser.setErrorHandler(&errors);
  /// parser.parse("chart.xml");
  /// xercesc::DOMDocument* dom = parser.getDocument();
  ///
  /// const xercesc::DOMNodeList* elements = dom->getElementsByTagName(u"*");
  /// for (XMLSize_t i = 0; xercesc::DOMNode* node = elements->item(i); ++i) {
  ///   auto* element = static_cast<xercesc::DOMElement*>(node);
  ///   if (element->hasAttribute(u"id"))
  ///     element->setIdAttribute(u"id", true);
  /// }
  ///
  /// OrbDocument document(dom);
  /// \endcode
  explicit OrbDocument(xercesc::DOMDocument* document);

  OrbDocument(const OrbDocument&) = delete;
  OrbDocument& operator=(const OrbDocument&) = delete;
  virtual ~OrbDocument();

  virtual OrbVisualization* GetVisualization();

  xercesc::DOMDocument* getImplementation() const;

  /// The whole document as text, indented and with XML declaration, in the encoding of the document, which is UTF-8
  /// unless the document names another.
  std::string AsUTF8() const;

private:
  friend class ChartReader;
  enum class Ownership { host, own };
  OrbDocument(xercesc::DOMDocument* document, Ownership ownership);

  xercesc::DOMDocument* document_;
  OrbVisualization* visualization_;
  bool ownsDocument_;
};
