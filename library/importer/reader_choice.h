#pragma once

#include <QFileInfo>
#include <QString>
#include <QtGlobal>

/// The readers that a file can be given to.
enum class ReaderKind : quint8 {
    Tavrel,       ///< binary canvas files
    Orvanta,      ///< XML label files
    OpenDocument, ///< OpenDocument text and drawing files
};

namespace readerchoice {

/** A row of the table below. */ struct SuffixRow
{
    QLatin1String suffix; ///< what stands behind the last dot, in small letters
    ReaderKind reader;    ///< who reads such files
};

/// The suffixes that name a reader; all others belong to the binary reader.
inline constexpr SuffixRow SuffixTable[] = {
    {QLatin1String("qmtx"), ReaderKind::Orvanta},
    {QLatin1String("odt"), ReaderKind::OpenDocument},
    {QLatin1String("odg"), ReaderKind::OpenDocument},
};

} // namespace readerchoice

/// The reader for a file, by its name alone: nothing is opened.
///
/// Everything behind the first dot counts, in any case of letters. Old labels depend on
/// two oddities: "shelf.old.odt" has the suffix "old.odt" and is tried as a binary file,
/// and so is every file with a suffix that nobody knows, or with none.
[[nodiscard]] inline ReaderKind readerForFile(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).completeSuffix().toLower();
    for (const readerchoice::SuffixRow& row : readerchoice::SuffixTable) {
        if (suffix == row.suffix) {
            return row.reader;
        }
    }
    return ReaderKind::Tavrel;
}
