// The exception's texts, and its place in memory for every library that catches it.
#include "orbexception.h"

OrbException::OrbException() = default;

OrbException::OrbException(const std::string& what, const std::string& file, unsigned int line) :
    what_(what), file_(file), line_(line) {}

OrbException::OrbException(const OrbException& other) = default;

OrbException& OrbException::operator=(const OrbException& other) = default;

OrbException::~OrbException() = default;

const char* OrbException::what() const noexcept { return what_.c_str(); }

const char* OrbException::file() const noexcept { return file_.c_str(); }

unsigned int OrbException::line() const noexcept { return line_; }
