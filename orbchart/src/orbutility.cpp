// Starts and stops the XML platform, and makes the empty document of the language.
#include "orbutility.h"

#include "orberrorhandler.h"
#include "orbuni.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <string>

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::XMLException;
using xercesc::XMLPlatformUtils;

namespace {

/// The name pool has the URI of the language behind this, as one text.
constexpr std::size_t declarationPrefix = std::size(u"xmlns:") - 1;

void fill(DOMDocument& document) {
  document.setStrictErrorChecking(true);
  document.setXmlStandalone(false);
  document.setXmlVersion(u"1.0");
  const std::basic_string<XMLCh> language = OrbUni::_namespaceURI + declarationPrefix;
  DOMElement* root = document.getDocumentElement();
  root->setAttribute(u"xmlns", language.c_str());
  root->setAttribute(u"xmlns:xsi", u"http://www.w3.org/2001/XMLSchema-instance");
  root->setAttribute(u"xsi:schemaLocation", (language + u" " + language + u"/orbml-2.9.xsd").c_str());
}

} // namespace

void OrbUtility::Initialize() {
  try {
    XMLPlatformUtils::Initialize();
  } catch (const XMLException& exception) {
    OrbErrorHandler().error(exception);
  }
}

void OrbUtility::Terminate() {
  try {
    XMLPlatformUtils::Terminate();
  } catch (const XMLException& exception) {
    OrbErrorHandler().error(exception);
  }
}

DOMDocument* OrbUtility::CreateDocument() {
  DOMDocument* document = nullptr;
  try {
    xercesc::DOMImplementation* implementation =
        xercesc::DOMImplementationRegistry::getDOMImplementation(OrbUni::_implFeatures);
    // The whole text, prefix included, is the namespace of the root's node.
    document = implementation->createDocument(OrbUni::_namespaceURI, OrbUni::_visualization, nullptr);
    fill(*document);
  } catch (const XMLException& exception) {
    OrbErrorHandler().error(exception);
  } catch (...) { // NOLINT(bugprone-empty-catch): the caller gets what stands by then
  }
  return document;
}
