// The macro that exports a class or function from the shared library. Everything without it stays hidden.
#pragma once

#define ORBCHART_EXPORT __attribute__((visibility("default")))
