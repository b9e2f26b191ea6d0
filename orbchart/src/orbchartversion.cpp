// The version of the library.
#include "orbchartversion.h"

const char* orbchartVersion() noexcept { return ORBCHART_VERSION; }
