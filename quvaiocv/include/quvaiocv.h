// The operations of the closed string and value library, in an open stand-in: UTF-16 buffers that callers own, the way
// between them and other encodings, and the text of data values. A host that owns the closed library behind this header
// links that one instead.
#pragma once

#include <string>

#define QUVAIOCV_EXPORT __attribute__((visibility("default")))

/// \addtogroup tools
/// \{

/// \name Texts
/// Every text ends in a zero unit. A null argument never crashes: where a text is given, it yields null or does
/// nothing. What cannot be converted (bytes that the encoding does not know, surrogates that stand alone) is left out
/// of the result.
/// \{

/// A new copy of `text`, freed by QUVAMBRelease. Null for null.
QUVAIOCV_EXPORT char16_t* QUVAMBReplicate(const char16_t* text);

/// Frees the buffer that `*buffer` points to, and leaves the pointer as it is. Both pointers may be null.
QUVAIOCV_EXPORT void QUVAMBRelease(char16_t** buffer);
QUVAIOCV_EXPORT void QUVAMBRelease(char** buffer);

/// Appends `text` to `*buffer`, which may move. A null `*buffer` becomes a copy of `text`; `text` may lie inside
/// `*buffer`.
QUVAIOCV_EXPORT void QUVAMBAppend(char16_t** buffer, const char16_t* text);

/// UTF-8 to a new UTF-16 buffer and back; the results are freed by QUVAMBRelease. Null for null.
QUVAIOCV_EXPORT char16_t* QUVAMBTranscodeU8(const char* text);
QUVAIOCV_EXPORT char* QUVAMBTranscodeU8(const char16_t* text);

/// The same with the generic encoding, which is UTF-8 whatever the locale.
QUVAIOCV_EXPORT char16_t* QUVAMBTranscodeGeneric(const char* text);
QUVAIOCV_EXPORT char* QUVAMBTranscodeGeneric(const char16_t* text);

/// A converter from `encoding`, a name that iconv takes, to UTF-16; null for a null or an unknown name. It is ended by
/// QUVAMBConverterDelete_A, which accepts null, and serves one thread at a time.
QUVAIOCV_EXPORT void* QUVAMBConverterNew_A(const char* encoding);
QUVAIOCV_EXPORT void QUVAMBConverterDelete_A(void* converter);

/// Sets `out` to the whole of `in`, zero bytes included, as UTF-16. A null converter gives the empty text.
QUVAIOCV_EXPORT void QUVAMBGenericToU16(void* converter, std::u16string& out, const std::string& in);

/// The first `n` UTF-16 units of `text`, or one unit less where the cut would part a surrogate pair; null for null.
/// The result belongs to the library and stands until the thread's next call.
QUVAIOCV_EXPORT const char16_t* QUVAMBStringTruncate_W(const char16_t* text, unsigned long n);

/// \}

/// One value of a data set, 8 bytes wide: a number, or the first characters of a text that goes on in the values behind
/// it.
union OBS {
  double number;
  char text[8];
};

/// How a value is written: the width in characters, the kind, and the number of decimals.
struct QUVA_Format {
  /// The kinds of value. Codes without a name that are listed write a plain number: 6 to 12, 33 to 37, 40.
  enum FormatType : unsigned char {
    text = 1,              ///< characters, as they are
    hexadecimal = 2,       ///< two digits for each byte of a text
    comma = 3,             ///< 1,234.50
    dollar = 4,            ///< $1,234.50
    number = 5,            ///< 1234.50
    zeroPadded = 15,       ///< 0001234.50
    digits = 16,           ///< 0001235, a whole number that is not negative
    exponent = 17,         ///< 1.23E+03
    date = 20,             ///< 14-OCT-1582; 14-OCT-82 in less than 11 characters
    time = 21,             ///< 25:06:07.50; 25:06 in less than 8 characters
    dateTime = 22,         ///< 14-OCT-1582 05:06:07.50
    americanDate = 23,     ///< 10/14/1582; 10/14/82 in less than 10
    julianDate = 24,       ///< 1582287; 82287 in less than 7
    dayTime = 25,          ///< 1 01:06:07.50, days and time
    weekday = 26,          ///< Sunday for 1 to Saturday for 7, cut to its width
    month = 27,            ///< January for 1 to December for 12, cut to its width
    monthYear = 28,        ///< OCT 1582; OCT 82 in less than 8
    quarterYear = 29,      ///< 4 Q 1582; 4 Q 82 in less than 8
    weekYear = 30,         ///< 41 WK 1582; 41 WK 82 in less than 10
    percentage = 31,       ///< 12.50%
    point = 32,            ///< as comma
    europeanDate = 38,     ///< 14.10.1582; 14.10.82 in less than 10
    sortableDate = 39,     ///< 1582/10/14; 82/10/14 in less than 10
    minuteTime = 85,       ///< 1506:07.50, minutes and seconds
    sortableDateTime = 86, ///< 1582-10-14 05:06:07.50
  };

  unsigned short width;
  FormatType type;
  unsigned char decimals;
};

/// Writes a value into a buffer of one character more than the width: exactly as many characters as the width, and a
/// zero. Numbers and dates stand at the right, texts at the left. 0 is success.
///
/// The decimal mark is that of the locale, of which nothing else counts; digits are grouped by "," or, where that is
/// the decimal mark, by ".". The missing value, the lowest finite number, is blank.
///
/// Nothing is written past the width: what is too wide for it gives up its grouping, then its decimals one by one, then
/// the seconds of a time and the century of a date; what is still too wide, and a number that is none, is a row of
/// asterisks. Seconds are rounded to the decimals, and carry.
///
/// Dates count the seconds from the midnight that begins 14 October 1582. A date below that, past the year 9999 or no
/// number fails, as do an unknown type and a null pointer.
QUVAIOCV_EXPORT int ToString(const OBS* value, const QUVA_Format& format, char* buffer);

/// \}
