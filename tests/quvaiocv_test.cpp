// The string library's stand-in: buffers, encodings, truncation.
#include "quvaiocv.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

template <class Unit> std::basic_string<Unit> taken(Unit* buffer) {
  EXPECT_NE(buffer, nullptr);
  std::basic_string<Unit> text = buffer ? buffer : std::basic_string<Unit>();
  QUVAMBRelease(&buffer);
  return text;
}

std::u16string toU16(const std::string& text) { return taken(QUVAMBTranscodeU8(text.c_str())); }
std::string toU8(const std::u16string& text) { return taken(QUVAMBTranscodeU8(text.c_str())); }

std::u16string decoded(const char* encoding, const std::string& bytes) {
  void* converter = QUVAMBConverterNew_A(encoding);
  std::u16string text = u"before";
  QUVAMBGenericToU16(converter, text, bytes);
  QUVAMBConverterDelete_A(converter);
  return text;
}

TEST(StringLibrary, NullArgumentsGiveNullOrDoNothing) {
  QUVAMBRelease(static_cast<char16_t**>(nullptr));
  QUVAMBRelease(static_cast<char**>(nullptr));
  char16_t* buffer = nullptr;
  char* bytes = nullptr;
  QUVAMBRelease(&buffer);
  QUVAMBRelease(&bytes);
  QUVAMBAppend(nullptr, u"x");
  QUVAMBAppend(&buffer, nullptr);
  EXPECT_EQ(buffer, nullptr);
  EXPECT_EQ(QUVAMBReplicate(nullptr), nullptr);
  EXPECT_EQ(QUVAMBTranscodeU8(buffer), nullptr);
  EXPECT_EQ(QUVAMBTranscodeU8(bytes), nullptr);
  EXPECT_EQ(QUVAMBTranscodeGeneric(buffer), nullptr);
  EXPECT_EQ(QUVAMBTranscodeGeneric(bytes), nullptr);
  EXPECT_EQ(QUVAMBStringTruncate_W(nullptr, 3), nullptr);
}

TEST(StringLibrary, AppendGrowsTheBufferAndTakesItsOwnText) {
  char16_t* buffer = nullptr;
  QUVAMBAppend(&buffer, u"abc");
  QUVAMBAppend(&buffer, buffer + 1);
  QUVAMBAppend(&buffer, buffer + 5);
  QUVAMBAppend(&buffer, u"");
  for (int i = 0; i < 12; ++i)
    QUVAMBAppend(&buffer, buffer);
  const std::u16string text = taken(buffer);
  EXPECT_EQ(text.size(), 5u << 12);
  EXPECT_EQ(text.substr(0, 12), u"abcbcabcbcab");
  EXPECT_EQ(text.substr(text.size() - 5), u"abcbc");
}

TEST(StringLibrary, Utf8AndUtf16GoBothWays) {
  const std::pair<std::string, std::u16string> pairs[] = {{"", u""},
                                                          {"plain", u"plain"},
                                                          {"Gr\u00f6\u00dfe \u20ac", u"Gr\u00f6\u00dfe \u20ac"},
                                                          {"\U0001F4C8", u"\U0001F4C8"}};
  for (const auto& [utf8, utf16] : pairs) {
    EXPECT_EQ(toU16(utf8), utf16);
    EXPECT_EQ(toU8(utf16), utf8);
    EXPECT_EQ(taken(QUVAMBTranscodeGeneric(utf8.c_str())), utf16);
    EXPECT_EQ(taken(QUVAMBTranscodeGeneric(utf16.c_str())), utf8);
  }
  std::string utf8;
  std::u16string utf16;
  for (int i = 0; i < 5000; ++i) {
    utf8 += "a\u00e9\u20ac\U0001F4C8";
    utf16 += u"a\u00e9\u20ac\U0001F4C8";
  }
  EXPECT_EQ(toU16(utf8), utf16);
  EXPECT_EQ(toU8(utf16), utf8);
}

TEST(StringLibrary, WhatCannotBeConvertedIsLeftOut) {
  EXPECT_EQ(toU16("a\xff"
                  "b\xe2\x82"
                  "c\xed\xa0\x80"
                  "d\xc3"),
            u"abcd");
  EXPECT_EQ(toU16("\xc3\xa9"), u"\u00e9") << "the text before leaves nothing behind";
  EXPECT_EQ(toU8({u'a', 0xD800, u'b', 0xDC00, u'c', 0xD83D}), "abc");
  EXPECT_EQ(toU8(u"\u00e9"), "\u00e9");

  std::string many;
  for (int i = 0; i < 5000; ++i)
    many += "\xff\u00e9";
  EXPECT_EQ(toU16(many), std::u16string(5000, u'\u00e9'));
}

TEST(StringLibrary, ConvertersTakeTheNamesOfIconv) {
  EXPECT_EQ(decoded("ISO-8859-1", "Gr\xf6\xdf"s + "e"), u"Gr\u00f6\u00dfe");
  EXPECT_EQ(decoded("windows-1252", "\x80"), u"\u20ac");
  EXPECT_EQ(decoded("SHIFT_JIS", "\x82\xa0"), u"\u3042");
  EXPECT_EQ(decoded("UTF-8", "a\0b"s), u"a\0b"s);
  EXPECT_EQ(decoded("UTF-16BE", "\0a\xd8\0\0b"s), u"ab") << "a lone surrogate is a whole unit";
  EXPECT_EQ(decoded("TCVN", "ae"), u"ae") << "this encoding holds its last character back";
  EXPECT_EQ(decoded("UTF-8", ""), u"");
}

TEST(StringLibrary, AnUnknownEncodingConvertsNothing) {
  EXPECT_EQ(QUVAMBConverterNew_A("no such encoding"), nullptr);
  EXPECT_EQ(QUVAMBConverterNew_A(nullptr), nullptr);
  EXPECT_EQ(decoded("no such encoding", "abc"), u"");
}

TEST(StringLibrary, TruncationCountsUnitsAndKeepsPairsWhole) {
  const char16_t* text = u"a\U0001F4C8b";
  const std::u16string expected[] = {u"", u"a", u"a", u"a\U0001F4C8", u"a\U0001F4C8b", u"a\U0001F4C8b"};
  for (unsigned long n = 0; n < std::size(expected); ++n)
    EXPECT_EQ(QUVAMBStringTruncate_W(text, n), expected[n]) << n;
  EXPECT_EQ(QUVAMBStringTruncate_W(text, 1UL << 40), expected[4]);
  const char16_t* result = QUVAMBStringTruncate_W(u"abcdef", 5);
  EXPECT_EQ(QUVAMBStringTruncate_W(result, 2), u"ab"s) << "its own result, once more";
}

} // namespace
