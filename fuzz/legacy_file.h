#pragma once

#include <QByteArray>

/// The possible formats of a file, by its first bytes. Inputs for all formats therefore need no
/// prefix that selects the format.
enum class Format {
    Tavrel,
    Orvanta,
    OpenDocument,
    SavedLabel,
};

[[nodiscard]] inline Format formatOf(const QByteArray& file)
{
    if (file.startsWith("PK")) {
        return Format::OpenDocument;
    }
    if (file.startsWith('<')) {
        return Format::Orvanta;
    }
    return file.startsWith('{') ? Format::SavedLabel : Format::Tavrel;
}
