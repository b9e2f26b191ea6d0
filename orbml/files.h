// Files as the program reads and replaces them, and how it says that something went wrong with them.
#pragma once

#include "commands.h"

#include <orbdocument.h>
#include <orbexception.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

/// A file that cannot be read or written.
struct FileError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Whether a file argument stands for standard input.
bool isStandardInput(const std::string& file);
/// What a file argument is called in messages.
std::string nameOf(const std::string& file);

/// All that a file, or standard input, holds.
std::string contentOf(const std::string& file);

/// Raises a FileError for a file that cannot be opened or read at all. A pipe with nobody at its other end does not
/// hold this up.
void requireReadable(const std::string& file);

/// Does the reading of a file, which need not end, as a device's does not. What it raises is about the document, unless
/// the file cannot be read at all.
template <class Reading> auto readInPieces(const std::string& file, Reading reading) {
  try {
    return reading();
  } catch (const OrbException&) {
    requireReadable(file);
    throw;
  }
}

/// The chart of a file, or of standard input.
std::unique_ptr<OrbDocument> readChart(const std::string& file);

/// Raises a FileError for what is no regular file.
void requireReplaceable(const std::string& file);

/// Puts a text into the place of a file in one step: a crash or a full disk leaves the old one whole. A symbolic link
/// stays and what it leads to is replaced; mode and, where that is allowed, owner stay.
void replaceFile(const std::string& file, const std::string& content);

/// Writes a line to the error stream, with the name of the program before it.
void complain(const std::string& message);

/// Runs the work on one file. What is wrong with the document, or with the file, is said on the error stream.
ExitCode onFile(const std::function<ExitCode()>& work);
