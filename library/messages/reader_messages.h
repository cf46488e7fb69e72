#pragma once

#include <QtGlobal>

/// Messages that label editors and log filters already know. They have no category, so a program
/// that needs to recognize one compares it with the constant that the reader writes.
namespace messages {

/// A message box text or part of a message that is translated in the context "QObject".
struct Translated
{
    const char* text;
    const char* comment; ///< the disambiguation
};

// Binary labels.

/// %1 is the file's version, %2 the current one; the path follows after a space.
inline constexpr Translated VersionRefused = QT_TRANSLATE_NOOP3(
    "QObject", "Invalid canvas file version (%1 != %2) in", "Content of error message.");
inline constexpr char RecordTypeUnknown[] = "Invalid type: %1";
inline constexpr Translated ItemsUnreadable =
    QT_TRANSLATE_NOOP3("QObject", "Errors reading items.", "Content of error message.");
inline constexpr Translated SymbolsUnreadable = QT_TRANSLATE_NOOP3(
    "QObject",
    "Errors reading symbol items.\nPlease update legacy Tavrel to its latest version and re-save "
    "file.",
    "Content of error message.");
/// Follows the text in quotation marks, whose white space is simplified. %1 is a size in points.
inline constexpr Translated TextStretched =
    QT_TRANSLATE_NOOP3("QObject", ":\n\tOriginal font size: %1.", "Content of error message.");
inline constexpr Translated BarcodesUnsupported =
    QT_TRANSLATE_NOOP3("QObject", "Unsupported barcode symbols.", "Content of error message.");
inline constexpr Translated DatabaseNotConnected =
    QT_TRANSLATE_NOOP3("QObject", "Datasource not connected.", "Content of error message.");

// XML labels. Formats of printf.

inline constexpr char OpeningFailed[] = "Error opening file: %s";
/// File name, line, column, the parser's message.
inline constexpr char ParsingFailed[] = "Error parsing file: %s at line %lld, column %lld:\n%s";
inline constexpr char RootElementUnknown[] = "Error: the file is not a orvanta doc";
/// The element's name in quotation marks follows after a space.
inline constexpr char ControlUnknown[] = "Not processing:";

// OpenDocument documents.

inline constexpr char StylesMissing[] = "Unable to get file styles.";
inline constexpr char ContentMissing[] = "Unable to get file content.";
/// The document's name in the package, line, column, the parser's message. Log filters depend on
/// the constant word before the name.
inline constexpr char DocumentParsingFailed[] =
    "Error parsing file: fileName / %s at line %lld, column %lld:\n%s";
inline constexpr char DocumentTypeUnsupported[] = "Unsupported document type.";

} // namespace messages
