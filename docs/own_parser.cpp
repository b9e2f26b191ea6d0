// A chart over a DOM that the host's own parser makes: it reads a file, marks the ids, and tells to which style
// the chart refers.
#include <orbchart.h>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <iostream>

int main(int, char** arguments) {
  xercesc::XMLPlatformUtils::Initialize();
  {
    xercesc::XercesDOMParser parser;
    xercesc::HandlerBase errors; // throws; without one, a broken file is half a document or none
    parser.setErrorHandler(&errors);
    parser.parse(arguments[1]);
    xercesc::DOMDocument* dom = parser.getDocument();

    const xercesc::DOMNodeList* elements = dom->getElementsByTagName(u"*");
    for (XMLSize_t i = 0; xercesc::DOMNode* node = elements->item(i); ++i) {
      auto* element = static_cast<xercesc::DOMElement*>(node);
      if (element->hasAttribute(u"id"))
        element->setIdAttribute(u"id", true);
    }

    OrbDocument document(dom); // raises an OrbException on what is no chart
    if (const OrbStyle* style = document.GetVisualization()->getStyle())
      std::cout << "The style of the chart is " << ChartString(style->getId()).toUTF8() << ".\n";
  }
  xercesc::XMLPlatformUtils::Terminate();
}
