#pragma once

#include <QByteArray>

/// The formats that a file may have by its first bytes: an input for all of them needs nothing
/// in front that would say which it is.
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
