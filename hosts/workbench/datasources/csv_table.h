#pragma once

#include <QByteArray>
#include <QChar>
#include <QString>
#include <QStringList>

namespace workbench::datasources {

/// Largest file, in bytes.
inline constexpr qint64 MaximumCsvBytes = 32LL * 1024 * 1024;
/// Most columns.
inline constexpr qsizetype MaximumCsvColumns = 500;
/// Most cells, without the header.
inline constexpr qsizetype MaximumCsvCells = 500'000;

/// Detect looks for a byte order mark, then for valid UTF-8.
enum class CsvEncoding { Detect, Utf8, Utf16, Windows1252 };

/// How to read a file.
struct CsvOptions
{
    QChar separator; ///< null: comma, semicolon, tab or bar, as the first line has it
    CsvEncoding encoding = CsvEncoding::Detect;
    bool hasHeader = true; ///< the first line names the columns
    bool operator==(const CsvOptions&) const = default;
};

/// The content of a file with comma-separated values.
struct CsvTable
{
    QStringList fields; ///< names of the columns, different and not empty
    QStringList cells;  ///< of the records, one after the other
    QChar separator;
    QString error; ///< user-visible; why the file is not a table; empty if it is

    [[nodiscard]] qsizetype records() const
    {
        return fields.isEmpty() ? 0 : cells.size() / fields.size();
    }
};

/// Reads comma-separated values as RFC 4180 defines them: fields with separators, quotes or line
/// breaks are quoted, and quotes in them doubled. All records must have as many fields as the
/// first line: a forgotten quote would otherwise shift the columns of a label unnoticed.
///
/// Encodings: UTF-8 and UTF-16 by their byte order marks, UTF-8 if the bytes are valid, else
/// Windows-1252. Line breaks: LF, CR LF or CR. Empty lines are skipped.
[[nodiscard]] CsvTable parseCsv(const QByteArray& bytes, const CsvOptions& options = {});

/// Reads a file, which must be a regular one.
[[nodiscard]] CsvTable readCsv(const QString& fileName, const CsvOptions& options = {});

} // namespace workbench::datasources
