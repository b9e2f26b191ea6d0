// The string operations of the closed string library, in an open stand-in: UTF-16 buffers that callers own, and the
// way between them and other encodings. A host that owns the closed library behind this header links that one instead.
#pragma once

#include <string>

#define QUVAIOCV_EXPORT __attribute__((visibility("default")))

// Every text ends in a zero unit. A null argument never crashes: where a text is given, it yields null or does nothing.
// What cannot be converted (bytes that the encoding does not know, surrogates that stand alone) is left out of the
// result.

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
