// The namespace of the language, whose scheme and host the build decides.
#include "orbuni.h"

#ifndef ORBCHART_NAMESPACE_HOST
#define ORBCHART_NAMESPACE_HOST u"http://orbchart.example"
#endif

const XMLCh OrbUni::_namespaceURI[] = u"xmlns:" ORBCHART_NAMESPACE_HOST u"/visualization";
