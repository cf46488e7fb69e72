#pragma once

#include "importer/legacy_template_importer.h"

#include <QFile>
#include <QFileInfo>
#include <QLatin1String>
#include <QString>
#include <QtGlobal>

#include <array>
#include <optional>

/// The available readers.
enum class ReaderKind : quint8 {
    Tavrel,       ///< binary canvas files
    Orvanta,      ///< XML label files
    OpenDocument, ///< OpenDocument text and drawing files
};

/// One reader: its names, its suffixes, and the importer's function for it.
struct Reader
{
    ReaderKind kind;    ///< its value is the place in Readers
    QLatin1String name; ///< in options, traces and reports
    /// Suffixes in lower case. The first two select the reader in the import command; tools accept
    /// those of templates as well. Unused places are empty.
    std::array<QLatin1String, 4> suffixes;
    bool (LegacyTemplateImporter::*importFile)(const QString& fileName); ///< its import
};

/// All readers. The first one gets files with unknown suffixes.
inline constexpr std::array Readers{
    Reader{ReaderKind::Tavrel,
           QLatin1String("tavrel"),
           {QLatin1String("cnv"), QLatin1String("roc")},
           &LegacyTemplateImporter::importLabelFromTavrelFile},
    Reader{ReaderKind::Orvanta,
           QLatin1String("orvanta"),
           {QLatin1String("qmtx")},
           &LegacyTemplateImporter::importLabelFromOrvantaFile},
    Reader{ReaderKind::OpenDocument,
           QLatin1String("opendocument"),
           {QLatin1String("odt"), QLatin1String("odg"), QLatin1String("ott"), QLatin1String("otg")},
           &LegacyTemplateImporter::importLabelFromOpenOfficeFile},
};

[[nodiscard]] inline const Reader& readerOf(ReaderKind kind)
{
    return Readers[static_cast<std::size_t>(kind)];
}

/// The reader of a name; empty for an unknown name.
[[nodiscard]] inline std::optional<ReaderKind> readerOfName(const QString& name)
{
    for (const Reader& reader : Readers) {
        if (name == reader.name) {
            return reader.kind;
        }
    }
    return std::nullopt;
}

/// The reader of a suffix, in any case; empty for an unknown suffix.
/// @param count how many of a reader's suffixes are compared
[[nodiscard]] inline std::optional<ReaderKind> readerOfSuffix(const QString& suffix,
                                                              std::size_t count = 4)
{
    for (const Reader& reader : Readers) {
        for (std::size_t index = 0; index < count; ++index) {
            const QLatin1String known = reader.suffixes[index];
            if (!known.isEmpty() && suffix.toLower() == known) {
                return reader.kind;
            }
        }
    }
    return std::nullopt;
}

/// The reader that the import command selects: by the name alone, without opening the file.
///
/// Everything after the first dot counts. Two oddities keep compatibility with old labels:
/// "shelf.old.odt" has the suffix "old.odt" and goes to the binary reader, and so does every file
/// with an unknown suffix or none. Tools use readerByNameOrContent().
[[nodiscard]] inline ReaderKind readerForFile(const QString& fileName)
{
    constexpr std::size_t commandSuffixes = 2;
    return readerOfSuffix(QFileInfo(fileName).completeSuffix(), commandSuffixes)
        .value_or(ReaderKind::Tavrel);
}

/// The reader of the format that the first bytes of a file identify; empty if unknown. Binary
/// labels begin with numbers, which do not identify them.
[[nodiscard]] inline std::optional<ReaderKind> readerOfContent(QByteArray head)
{
    if (head.startsWith("PK\x03\x04")) {
        return ReaderKind::OpenDocument;
    }
    // XML in UTF-8 or UTF-16, with or without a byte order mark.
    head.replace('\0', "");
    head.replace("\xEF\xBB\xBF", "").replace("\xFE\xFF", "").replace("\xFF\xFE", "");
    return head.trimmed().startsWith('<') ? std::optional(ReaderKind::Orvanta) : std::nullopt;
}

/// The first bytes of a regular file; empty if it cannot be opened.
[[nodiscard]] inline QByteArray headOfFile(const QString& fileName)
{
    constexpr qint64 headLength = 256;
    QFile file(fileName);
    const bool isRegular = QFileInfo(fileName).isFile(); // opening a pipe could block
    return isRegular && file.open(QIODevice::ReadOnly) ? file.read(headLength) : QByteArray();
}

/// The reader that tools select: by the complete suffix or else the last suffix of the name, or
/// else by the content; the binary reader if nothing selects one.
/// @param path the file to open for its content, if that is not the name
[[nodiscard]] inline ReaderKind readerByNameOrContent(const QString& name, const QString& path)
{
    // No suffix contains a dot, so a complete suffix that is known is the last suffix as well.
    const std::optional<ReaderKind> bySuffix = readerOfSuffix(QFileInfo(name).suffix());
    return bySuffix ? *bySuffix : readerOfContent(headOfFile(path)).value_or(ReaderKind::Tavrel);
}

[[nodiscard]] inline ReaderKind readerByNameOrContent(const QString& fileName)
{
    return readerByNameOrContent(fileName, fileName);
}
