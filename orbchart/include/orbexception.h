// The one exception type of the library.
#pragma once

#include "orbchartexport.h"

#include <exception>
#include <string>

/// An error with its message and the place in the source that raised it.
/// \ingroup documents
class ORBCHART_EXPORT OrbException : public std::exception {
public:
  OrbException();
  OrbException(const std::string& what, const std::string& file, unsigned int line);
  OrbException(const OrbException& other);
  OrbException& operator=(const OrbException& other);
  ~OrbException() override;

  /// The message, in UTF-8.
  const char* what() const noexcept override;

  /// The source path and the line in it; empty and 0 for an exception made without them.
  virtual const char* file() const noexcept;
  virtual unsigned int line() const noexcept;

private:
  std::string what_;
  std::string file_;
  unsigned int line_ = 0;
};
