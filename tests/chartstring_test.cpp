// ChartString and the number text of formatter. Nothing here brings the XML platform up: the class works without it.
#include "chartstring.h"
#include "commalocale.h"
#include "formatter.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <locale>

namespace {

const XMLCh* const none = nullptr;

/// Both buffers in UTF-8, "null" for a text that is not there.
std::string buffers(const ChartString& s) { return (s.xc_str() ? s.toUTF8() : "null") + "|" + s.toUTF8ForEng(); }

TEST(ChartString, ConstructorsFillBothBuffers) {
  EXPECT_EQ(buffers(ChartString()), "null|");
  EXPECT_EQ(buffers(ChartString(none)), "null|");
  EXPECT_EQ(buffers(ChartString(u"")), "|");
  EXPECT_EQ(buffers(ChartString(u"\u00e9")), "\u00e9|\u00e9");
  EXPECT_EQ(buffers(ChartString(u"a", u"b")), "a|b");
  EXPECT_EQ(buffers(ChartString(none, u"b")), "null|b");
  EXPECT_EQ(buffers(ChartString("\u00e9\xff")), "\u00e9|\u00e9");
  EXPECT_EQ(buffers(ChartString(static_cast<const char*>(nullptr))), "null|");
  EXPECT_EQ(buffers(ChartString(std::string("a"), std::string())), "a|");
  EXPECT_EQ(buffers(ChartString(std::string(), std::string("b"))), "null|b");
  EXPECT_EQ(buffers(ChartString(ULONG_MAX)), "18446744073709551615|18446744073709551615");
}

TEST(ChartString, CopiesAndMovesCarryBothBuffers) {
  ChartString source(none, u"b");
  const ChartString copy(source);
  EXPECT_EQ(buffers(copy), "null|b");
  ChartString moved(std::move(source));
  EXPECT_EQ(buffers(moved), "null|b");
  ChartString target(u"old");
  target = std::move(moved);
  EXPECT_EQ(buffers(target), "null|b");
  target = ChartString(u"x", u"y");
  moved = target;
  EXPECT_EQ(buffers(moved), "x|y");
  moved.clear();
  EXPECT_EQ(buffers(moved), "null|");
}

TEST(ChartString, AMovedFromStringIsInTheDefaultState) {
  ChartString first(u"a"), second(u"b");
  const ChartString third(std::move(first));
  ChartString fourth(u"c");
  fourth = std::move(second);
  EXPECT_EQ(buffers(first), "null|");  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(buffers(second), "null|"); // NOLINT(bugprone-use-after-move)
}

TEST(ChartString, AssignmentSetsTheBuffersThatItNames) {
  ChartString s(u"a", u"b");
  s.assignUTF8("\u00e9");
  EXPECT_EQ(buffers(s), "\u00e9|b");
  s.assignUTF8ForEng("e");
  EXPECT_EQ(buffers(s), "\u00e9|e");
  s.assignInteger(-12);
  EXPECT_EQ(buffers(s), "-12|e");
  s.assignDouble(0.5, 16);
  EXPECT_EQ(buffers(s), "0.5|e0.5");
  s.convertToUnicode("ISO-8859-1", "\xe9");
  EXPECT_EQ(buffers(s), "\u00e9|e0.5");
  s.convertToUnicode("no such encoding", "x");
  EXPECT_EQ(buffers(s), "|e0.5");
  s.convertToUnicode("UTF-8", "");
  EXPECT_EQ(buffers(s), "null|e0.5");
  s.assignQUVAMBGeneric("g");
  EXPECT_EQ(buffers(s), "g|g");
  s.assign(XMLCh(u'c'));
  EXPECT_EQ(buffers(s), "c|c");
  s.assign(7UL);
  EXPECT_EQ(buffers(s), "7|7");
  s.assign(none, u"b");
  EXPECT_EQ(buffers(s), "null|b");
  s = "bytes";
  EXPECT_EQ(buffers(s), "bytes|bytes");
  s = u"units";
  EXPECT_EQ(buffers(s), "units|units");
  s = none;
  EXPECT_EQ(buffers(s), "null|");
}

TEST(ChartString, AppendToNothingGivesTheEnglishFormTheTextTwice) {
  ChartString s;
  s.append(u"");
  s.append(none);
  EXPECT_EQ(buffers(s), "null|");
  s.append(u"ab");
  EXPECT_EQ(buffers(s), "ab|abab");
  s.append(u"c");
  EXPECT_EQ(buffers(s), "abc|ababc");

  ChartString english(none, u"e");
  english.append(u"a");
  EXPECT_EQ(buffers(english), "a|aa");
}

TEST(ChartString, OtherAppendsGiveEachBufferItsOwn) {
  ChartString s;
  s.append("\u00e9");
  s.append("");
  s.append(static_cast<const char*>(nullptr));
  s.append(u"a", u"b");
  s.append(none, u"c");
  s.append(u"d", u"");
  s.append(XMLCh(u'x'));
  s.append(ChartString(u"1", u"2"));
  EXPECT_EQ(buffers(s), "\u00e9adx1|\u00e9bcx2");
  s.clear();
  s.append(18UL);
  s.appendInteger(-9);
  s.appendDouble(0.1);
  EXPECT_EQ(buffers(s), "18-90.1|18-90.1");
}

TEST(ChartString, ArgumentsMayLieInTheObjectItself) {
  ChartString s(u"ab", u"xy");
  s.append(s);
  EXPECT_EQ(buffers(s), "abab|xyxy");
  s.append(s.xc_str() + 2);
  EXPECT_EQ(buffers(s), "ababab|xyxyab");
  s.append(s.xc_str(), s.xc_str() + 4);
  EXPECT_EQ(buffers(s), "abababababab|xyxyabab");
  s.assign(s.xc_str() + 8);
  EXPECT_EQ(buffers(s), "abab|abab");
  s.assign(s.xc_str() + 3, s.xc_str());
  EXPECT_EQ(buffers(s), "b|abab");
  auto& same = s;
  s = same;
  EXPECT_EQ(buffers(s), "b|abab");
  s.assign(u"abab");
  EXPECT_EQ(s.replaceSubstring(s.xc_str() + 3, s.xc_str()), 2u);
  EXPECT_EQ(buffers(s), "aababaabab|aababaabab");
}

TEST(ChartString, NullAndEmptyDifferBetweenTheEqualities) {
  const ChartString null, empty(u""), text(u"a");
  EXPECT_TRUE(null.equals(none));
  EXPECT_TRUE(null.equals(u""));
  EXPECT_TRUE(empty.equals(none));
  EXPECT_FALSE(text.equals(none));
  EXPECT_TRUE(text.equals(u"a"));
  EXPECT_FALSE(text.equals(u"ab"));
  EXPECT_FALSE(null.equals(empty));
  EXPECT_FALSE(empty == null);
  EXPECT_TRUE(null == ChartString());
  EXPECT_TRUE(text == ChartString(u"a", u"other"));
  EXPECT_TRUE(null.empty() && empty.empty() && !text.empty());
  EXPECT_EQ(null.length(), 0u);
  EXPECT_EQ(ChartString(u"\U0001F4C8").length(), 2u);
}

TEST(ChartString, OrderIsByUnitsWithNullFirst) {
  const ChartString null, empty(u""), a(u"a"), ab(u"ab"), high(u"\uffee"), pair(u"\U0001F4C8");
  EXPECT_TRUE(null < empty && !(empty < null) && !(null < null));
  EXPECT_TRUE(empty < a && a < ab && !(ab < a) && !(a < a));
  EXPECT_TRUE(ab < high && pair < high);
}

TEST(ChartString, EqualityWithoutCaseFoldsCharacters) {
  EXPECT_TRUE(ChartString(u"Gr\u00d6ssE").equalsi(u"gR\u00f6SSe"));
  EXPECT_TRUE(ChartString(u"\u03a3\u03c2").equalsi(u"\u03c3\u03c3"));
  EXPECT_TRUE(ChartString(u"\U00010400").equalsi(u"\U00010428"));
  EXPECT_FALSE(ChartString(u"\u00df").equalsi(u"ss"));
  EXPECT_FALSE(ChartString(u"abc").equalsi(u"ab"));
  EXPECT_FALSE(ChartString(u"ab").equalsi(u"abc"));
  EXPECT_TRUE(ChartString().equalsi(none));
  EXPECT_TRUE(ChartString().equalsi(u""));
  EXPECT_FALSE(ChartString(u"a").equalsi(none));
}

TEST(ChartString, ContainsString) {
  const ChartString s(u"aab");
  EXPECT_TRUE(s.ContainsString(u"ab") && s.ContainsString(u"aab") && s.ContainsString(u""));
  EXPECT_FALSE(s.ContainsString(u"aabb") || s.ContainsString(u"ba") || s.ContainsString(none));
  EXPECT_FALSE(ChartString().ContainsString(u""));
}

TEST(ChartString, ChangesInPlaceLeaveTheEnglishForm) {
  ChartString s(u"banana", u"e");
  s.replaceChars(u'a', u'o');
  EXPECT_EQ(buffers(s), "bonono|e");
  s.truncateString(2);
  EXPECT_EQ(buffers(s), "bono|e");
  s.truncateString(9);
  EXPECT_EQ(buffers(s), "|e");

  ChartString null;
  null.replaceChars(u'a', u'b');
  null.truncateString(1);
  null.mbTruncateString(1);
  null.trimSpaces(true);
  EXPECT_EQ(null.replaceSubstring(u"a", u"b"), 0u);
  EXPECT_EQ(buffers(null), "null|");
}

TEST(ChartString, TruncationToALengthSetsBothBuffers) {
  ChartString s(u"a\U0001F4C8b", u"e");
  s.mbTruncateString(2);
  EXPECT_EQ(buffers(s), "a|a");
}

TEST(ChartString, TrimSpaces) {
  const auto trimmed = [](const XMLCh* text, bool both) {
    ChartString s(text, u"e");
    s.trimSpaces(both);
    return buffers(s);
  };
  EXPECT_EQ(trimmed(u"  a b  ", false), "  a b|e");
  EXPECT_EQ(trimmed(u"  a b  ", true), "a b|a b");
  EXPECT_EQ(trimmed(u"a  ", true), "a|e");
  EXPECT_EQ(trimmed(u"   ", true), "|e");
  EXPECT_EQ(trimmed(u" a\t", true), "a\t|a\t");
  EXPECT_EQ(trimmed(u"a\t ", false), "a\t|e");
}

TEST(ChartString, ReplaceSubstring) {
  const auto replaced = [](const XMLCh* text, const XMLCh* from, const XMLCh* to) {
    ChartString s(text, u"e");
    const unsigned int count = s.replaceSubstring(from, to);
    return std::to_string(count) + ":" + buffers(s);
  };
  EXPECT_EQ(replaced(u"abc", u"x", u"y"), "0:abc|e");
  EXPECT_EQ(replaced(u"abc", u"abcd", u"y"), "0:abc|e");
  EXPECT_EQ(replaced(u"abc", none, u"y"), "0:abc|e");
  EXPECT_EQ(replaced(u"abc", u"", u"y"), "0:abc|e");
  EXPECT_EQ(replaced(u"aaaaa", u"aa", u"b"), "2:bba|bba");
  EXPECT_EQ(replaced(u"a.b", u".", u".."), "1:a..b|a..b");
  EXPECT_EQ(replaced(u"a.b.", u".", none), "2:ab|ab");
  EXPECT_EQ(replaced(u"aa", u"a", u""), "2:null|");
}

TEST(ChartString, EscapeSpecialCharacters) {
  ChartString s(u"<a b=\"c\">&'</a>&amp;", u"e");
  EXPECT_EQ(&s.escapeSpecialCharacters(), &s);
  const std::string escaped = "&lt;a b=&quot;c&quot;&gt;&amp;&#39;&lt;/a&gt;&amp;amp;";
  EXPECT_EQ(buffers(s), escaped + "|" + escaped);
  ChartString plain(u"plain", u"e");
  EXPECT_EQ(buffers(plain.escapeSpecialCharacters()), "plain|e");

  ChartString large(std::u16string(1000000, u'&').c_str());
  EXPECT_EQ(large.escapeSpecialCharacters().length(), 5000000u);
}

TEST(ChartString, IsNumberIsACharacterFilter) {
  for (const XMLCh* text :
       {u"0", u"-", u".", u"-.", u"12.5", u"-1e5", u"1E+5", u"1e-5", u"1e.5", u".e5", u"-e5", u"007"})
    EXPECT_TRUE(ChartString(text).isNumber()) << ChartString(text).toUTF8();
  for (const XMLCh* text :
       {u"",      u"+1",    u"1,5",   u"1.2.3", u"e5", u"5e",  u"1e5e5", u"1e+",    u"1e-", u"1-2", u"--1",
        u"1e+-5", u"1e5-2", u"1e5+2", u" 1",    u"1 ", u"0x1", u"1/2",   u"\u0661", u"1f",  u"nan"})
    EXPECT_FALSE(ChartString(text).isNumber()) << ChartString(text).toUTF8();
  EXPECT_FALSE(ChartString().isNumber());
}

TEST(ChartString, IntegersReadDigitsOnly) {
  const auto number = [](const XMLCh* text) { return ChartString(text).convertToInteger(); };
  EXPECT_EQ(number(u"0123"), 123u);
  EXPECT_EQ(number(u"4294967295"), UINT_MAX);
  EXPECT_EQ(number(u"4294967298"), 2u);
  for (const XMLCh* text : {u"", u"-1", u"+1", u"12 ", u"1.5", u"12a", u"\u0661", u"1/2", u"1:"})
    EXPECT_EQ(number(text), 0u);
  EXPECT_EQ(ChartString().convertToInteger(), 0u);

  const auto signedNumber = [](const XMLCh* text) { return ChartString(text).convertToSignedInteger(); };
  EXPECT_EQ(signedNumber(u"12"), 12);
  EXPECT_EQ(signedNumber(u"-12"), -12);
  EXPECT_EQ(signedNumber(u"1-2-"), -12);
  EXPECT_EQ(signedNumber(u"-2147483648"), INT_MIN);
  for (const XMLCh* text : {u"", u"-", u"+1", u"-1.5", u"-1 "})
    EXPECT_EQ(signedNumber(text), 0);
}

TEST(ChartString, IntegersAreWrittenExactly) {
  for (long n : {0L, 9L, -9L, 10L, 1000L, 9999999999999999L, LONG_MAX, LONG_MIN}) {
    ChartString s(u"old", u"e");
    s.assignInteger(n);
    EXPECT_EQ(buffers(s), std::to_string(n) + "|e");
  }
}

void expectBothDecimalMarks() {
  const auto number = [](const XMLCh* text) { return ChartString(text).convertToDouble(); };
  EXPECT_EQ(number(u"12.5"), 12.5);
  EXPECT_EQ(number(u"12,5"), 12.5);
  EXPECT_EQ(number(u" -1.5e3x"), -1500);
  EXPECT_EQ(number(u"1,234.5"), 1.234);
  EXPECT_EQ(number(u"1.234,5"), 1.234);
  EXPECT_EQ(number(u"5/"), 0);
  EXPECT_EQ(number(u""), 0);
  EXPECT_EQ(number(nullptr), 0);
  EXPECT_EQ(number(u"abc"), 0);
  EXPECT_EQ(number(u"2\u20ac"), 2);
  EXPECT_EQ(number(u"\u00a02"), 0);
  EXPECT_EQ(number(u"-INF"), -std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(number(u"nan")));
  EXPECT_EQ(formatter::AsString(0.5, 16), "0.5");
}

TEST(ChartString, DoublesReadBothDecimalMarks) { expectBothDecimalMarks(); }

TEST(ChartString, DoublesReadBothDecimalMarksWhereTheLocaleHasAComma) { test::inCommaLocale(expectBothDecimalMarks); }

TEST(Formatter, SixteenDigitsOfGeneralNotation) {
  const std::pair<double, const char*> texts[] = {{0, "0"},
                                                  {-0.0, "-0"},
                                                  {1, "1"},
                                                  {0.1, "0.1"},
                                                  {0.30000000000000004, "0.3"},
                                                  {1.0 / 3, "0.3333333333333333"},
                                                  {-12.5, "-12.5"},
                                                  {1e15, "1000000000000000"},
                                                  {1e16, "1e+16"},
                                                  {0.0001, "0.0001"},
                                                  {0.00001, "1e-05"},
                                                  {1e300, "1e+300"},
                                                  {INFINITY, "inf"}};
  for (const auto& [value, text] : texts) {
    EXPECT_EQ(formatter::AsString(value, 16), text);
    EXPECT_EQ(formatter::AsString(value, 99), text);
  }
}

TEST(Formatter, FewerDigitsRoundHalfUpAndCut) {
  EXPECT_EQ(formatter::AsString(1.5, 2), "1.50");
  EXPECT_EQ(formatter::AsString(2.0, 2), "2.00");
  EXPECT_EQ(formatter::AsString(1.255, 1), "1.3");
  EXPECT_EQ(formatter::AsString(1.24, 1), "1.2");
  EXPECT_EQ(formatter::AsString(-1.25, 1), "-1.2");
  EXPECT_EQ(formatter::AsString(2.25, 0), "2.");
  EXPECT_EQ(formatter::AsString(2.5, 0), "3");
  EXPECT_EQ(formatter::AsString(1e20, 0), "1e+20");
  EXPECT_EQ(formatter::AsString(1.25e-5, 5), "1.75e-05");
  EXPECT_EQ(formatter::AsString(1.23456e-5, 5), "1.73456e-05") << "an exponent keeps all its decimals";
}

/// A host's global locale, which a default stream would follow.
struct Grouping : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '\''; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Formatter, TheGlobalLocaleChangesNothing) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  EXPECT_EQ(formatter::AsString(-1234567L), "-1234567");
  EXPECT_EQ(formatter::AsString(1234567UL), "1234567");
  EXPECT_EQ(formatter::AsString(12345.5, 16), "12345.5");
  std::locale::global(before);
}

/// What a host's own static objects may do when the program ends, after the thread's own objects have gone.
struct ConvertsAtTheEnd {
  ~ConvertsAtTheEnd() { std::_Exit(ChartString(u"Gr\u00f6\u00dfe").toUTF8() == "Gr\u00f6\u00dfe" ? 0 : 1); }
};

TEST(ChartString, ConvertsForStaticObjectsThatEnd) {
  const auto program = [] {
    static const ConvertsAtTheEnd atTheEnd;
    EXPECT_FALSE(ChartString(u"\u00f6").toUTF8().empty());
    std::exit(2);
  };
  EXPECT_EXIT(program(), testing::ExitedWithCode(0), "");
}

} // namespace
