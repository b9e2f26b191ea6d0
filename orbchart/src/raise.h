// How the library reports an error: the log gets it first, then the host as an OrbException.
#pragma once

#include <string>

class ChartString;

namespace orbchart {

/// Logs the message and throws it. The place is the caller's unless given.
[[noreturn]] void raise(const std::string& message, const char* file = __builtin_FILE(),
                        unsigned int line = __builtin_LINE());
[[noreturn]] void raise(const ChartString& message, const char* file = __builtin_FILE(),
                        unsigned int line = __builtin_LINE());
[[noreturn]] void raise(const char* message, const char* file = __builtin_FILE(), unsigned int line = __builtin_LINE());

/// Logs the message and goes on.
void report(const std::string& message, const char* file = __builtin_FILE(), unsigned int line = __builtin_LINE());

} // namespace orbchart
