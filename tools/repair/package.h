#pragma once

#include "repair/document.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <memory>
#include <optional>

namespace ziplimits {
class ZipDirectory;
}

namespace repair {

/// An OpenDocument package that is rewritten. Members are read within the reader's limits.
class Package
{
public:
    explicit Package(const QString& fileName);
    ~Package();

    /// Styles and content. Nothing if one is missing, damaged or too large.
    [[nodiscard]] std::optional<Document> readDocument();
    /// A new package of a document and the pictures that it shows.
    [[nodiscard]] QByteArray written(const Document& document);

private:
    [[nodiscard]] QByteArray member(const QString& name, qint64 largest);

    std::unique_ptr<ziplimits::ZipDirectory> m_directory;
    QSet<QString> m_written; // pictures: each counts once
    qint64 m_pictureBytes = 0;
};

} // namespace repair
