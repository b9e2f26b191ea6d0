// The writer of XML text: walks a DOM and prints it into a stream in the encoding of its document.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

#include <ostream>

/// Prints a document, or a node with everything under it, as XML text.
///
/// With white space on, each element, comment and CDATA section begins a line of its own, one tab deeper than its
/// parent, and a closing tag lines up with its opening tag; a node that follows text stays where it is and so does the
/// closing tag after text, so that text is never disturbed. With white space off the output has no line breaks but
/// those of the data and the one line feed at the end.
///
/// Attribute values have & < > " ' and line feeds as references, texts & < > and carriage returns; in a document of
/// version 1.1 both have the control characters as references too. Everything else is written as it stands. A closing
/// "]]>" within a CDATA section, or "--" within a comment, is not mended.
///
/// A character that the encoding cannot hold, and a lone surrogate in any encoding, is left out of the output; the rest
/// of its text and of the document is written. Each text, value or name that loses characters leaves one entry in the
/// error log, and the result of the print stays true. Beyond the basic plane an encoding holds all of Unicode or
/// nothing.
///
/// A host may derive from the class and write to the formatter in beginNode(), endNode() or beginLine(): what it writes
/// lands in its place. During these calls the formatter's escape setting is NoEscapes. An XMLException of theirs is
/// logged and the walk goes on; any other exception ends the print.
/// \ingroup documents
class ORBCHART_EXPORT DOMPrinter {
public:
  static constexpr XMLCh _xmlDecl1[] = u"<?xml version=\"";
  static constexpr XMLCh _xmlDecl2[] = u"\" encoding=\"";
  static constexpr XMLCh _xmlDecl3[] = u"\" standalone=\"yes";
  static constexpr XMLCh _xmlDecl4[] = u"\"?>";
  static constexpr XMLCh _utf8[] = u"UTF-8";
  static constexpr XMLCh _openAngle[] = u"<";
  static constexpr XMLCh _closeAngle[] = u">";
  static constexpr XMLCh _endElement[] = u"</";
  static constexpr XMLCh _forwardSlash[] = u"/";
  static constexpr XMLCh _space[] = u" ";
  static constexpr XMLCh _equal[] = u"=";
  static constexpr XMLCh _doubleQuote[] = u"\"";
  static constexpr XMLCh _tab[] = u"\t";
  static constexpr XMLCh _newline[] = u"\n";
  static constexpr XMLCh _startCDATA[] = u"<![CDATA[";
  static constexpr XMLCh _endCDATA[] = u"]]>";
  static constexpr XMLCh _startComment[] = u"<!--";
  static constexpr XMLCh _endComment[] = u"-->";
  static constexpr XMLCh _startPI[] = u"<?";
  static constexpr XMLCh _endPI[] = u"?>";
  static constexpr XMLCh _startDoctype[] = u"<!DOCTYPE ";
  static constexpr XMLCh _startEntity[] = u"<!ENTITY ";
  static constexpr XMLCh _public[] = u"PUBLIC \"";
  static constexpr XMLCh _system[] = u"SYSTEM \"";
  static constexpr XMLCh _notation[] = u"NDATA \"";
  static constexpr XMLCh _openSquare[] = u"[";
  static constexpr XMLCh _closeSquare[] = u"]";
  static constexpr XMLCh _ampersand[] = u"&";
  static constexpr XMLCh _semiColon[] = u";";
  static constexpr XMLCh _xmlchLF[] = u"&#10;";
  static constexpr XMLCh _xmlamp[] = u"&amp;";
  static constexpr XMLCh _xmllt[] = u"&lt;";
  static constexpr XMLCh _xmlquot[] = u"&quot;";

  /// White space off, indent level 0.
  DOMPrinter() = default;
  DOMPrinter(const DOMPrinter&) = delete;
  DOMPrinter& operator=(const DOMPrinter&) = delete;
  virtual ~DOMPrinter();

  /// Prints the document, its declaration first, and a line feed (one byte, whatever the encoding), and flushes the
  /// stream. A document without an encoding is written in UTF-8, one without a version as 1.0. False after a logged
  /// XMLException, and for null. The XMLException of an encoding that Xerces does not know passes to the caller.
  virtual bool Print(const xercesc::DOMDocument* document, std::ostream& stream);

  /// The same for the node and everything under it, without a declaration unless the node is a document.
  /// declarationOnly ends the print of a document after its declaration and means nothing for other nodes. False also
  /// for null and for a node without an owner document.
  virtual bool Print(const xercesc::DOMNode* node, std::ostream& stream, bool declarationOnly);

  virtual void setPrintWhiteSpace(bool printWhiteSpace);

  /// Called before an element, a comment and a CDATA section are written: begins a line unless white space is off or a
  /// text stands directly before the node.
  virtual void beginNode(xercesc::XMLFormatter& formatter, const xercesc::DOMNode* node);

  /// Called before the closing tag of an element that has children: begins a line unless white space is off or the last
  /// child is a text.
  virtual void endNode(xercesc::XMLFormatter& formatter, const xercesc::DOMNode* node);

  /// Writes a line feed and as many tabs as the indent level; nothing with white space off.
  virtual void beginLine(xercesc::XMLFormatter& formatter);

  /// The walker: prints the node and everything under it through the formatter of the Print call that is under way, and
  /// nothing outside of one. The stream is only handed back. A node of a type that has no text of its own, such as an
  /// attribute, leaves a line on std::cerr.
  std::ostream& outputNode(std::ostream& stream, const xercesc::DOMNode* node, bool declarationOnly);

  /// Writes length units of the text, or all of it for a negative length, by the formatter's own settings. Nothing for
  /// null. Lone surrogates are left out, with one entry in the log.
  void outputString(xercesc::XMLFormatter& formatter, const XMLCh* text, int length = -1);

  /// Writes the text straight to the stream, in the generic encoding. Nothing for null.
  void outputString(std::ostream& stream, const XMLCh* text);

  void IncrementIndent();

  /// Never below 0.
  void DecrementIndent();

protected:
  bool printsWhiteSpace() const { return printWhiteSpace_; }

private:
  class Run;

  bool print(const xercesc::DOMDocument* document, const xercesc::DOMNode* node, std::ostream& stream,
             bool declarationOnly);

  bool printWhiteSpace_ = false;
  unsigned int indent_ = 0;
  xercesc::XMLFormatter* formatter_ = nullptr;
  Run* run_ = nullptr;
};
