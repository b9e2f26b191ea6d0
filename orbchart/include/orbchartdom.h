// What every public header needs of Xerces: its character type and the names of its DOM classes, without their
// definitions.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMAttr;
class DOMDocument;
class DOMElement;
class DOMException;
class DOMNode;
class SAXException;
class XMLException;
class XMLFormatter;
XERCES_CPP_NAMESPACE_END

static_assert(sizeof(XMLCh) == sizeof(char16_t) && XMLCh(-1) > 0 && XMLCh(u'x') == u'x',
              "orbchart needs a Xerces-C++ whose XMLCh is char16_t");
