// The namespace of the language, whose scheme and host the build decides.
#include "orbuni.h"

const XMLCh OrbUni::_namespaceURI[] = u"xmlns:" ORBCHART_NAMESPACE_HOST u"/visualization";
