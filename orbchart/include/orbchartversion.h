// The version of the library: of the headers that a host is compiled with, and of the library that it runs with.
#pragma once

#include "orbchartexport.h"

/// \addtogroup tools
/// \{

/// \name Version
/// The version of these headers, as numbers and as a text. The build takes its version from the text.
/// \{
#define ORBCHART_VERSION_MAJOR 0
#define ORBCHART_VERSION_MINOR 1
#define ORBCHART_VERSION_PATCH 0
#define ORBCHART_VERSION "0.1.0"
/// \}

/// The version of the library that runs, which is another than ORBCHART_VERSION if the host was compiled with the
/// headers of another.
ORBCHART_EXPORT const char* orbchartVersion() noexcept;

/// \}
