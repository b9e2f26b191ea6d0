// A chart document: the DOM and the root wrapper over it.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

#include <string>

class OrbVisualization;

/// What a host holds of a chart. The XML platform is up while it lives.
class ORBCHART_EXPORT OrbDocument {
public:
  /// A new, empty document, which goes with this object. Handlers of user data that the host put on its nodes are not
  /// called then.
  OrbDocument();

  /// Wraps a DOM that the host's parser made. The host keeps the DOM and its parser, and keeps both until this object
  /// has gone. The pointers of this object's wrappers stay on the elements: when the DOM is wrapped again, references
  /// must lead to no element that the new load does not see.
  ///
  /// The whole tree is wrapped at once. An unknown element raises the text of OrbBaseElement::ChildNotFoundError,
  /// except under variables and aesthetics, which pass it over, and under elements that have text alone; elements
  /// nested too deep raise "Elements are nested more than 10240 levels deep below visualization."; a null pointer and a
  /// document without a root raise what they are. When it raises, the DOM is as it was. The root is taken for a
  /// visualization whatever its name is.
  ///
  /// References find only elements whose `id` was marked as an ID attribute: by a parser that validates, or by the
  /// host with `DOMElement::setIdAttribute` before this call or after.
  explicit OrbDocument(xercesc::DOMDocument* document);

  OrbDocument(const OrbDocument&) = delete;
  OrbDocument& operator=(const OrbDocument&) = delete;
  virtual ~OrbDocument();

  virtual OrbVisualization* GetVisualization();

  xercesc::DOMDocument* getImplementation() const;

  /// The whole document as text, indented and with XML declaration.
  std::string AsUTF8() const;

private:
  xercesc::DOMDocument* document_;
  OrbVisualization* visualization_;
  bool ownsDocument_;
};
