#pragma once

#include "limits/xml/element_tree.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// Builds OpenDocument packages and their parts for tests.

/// The root element of a fragment of XML. Prefixes need no declaration.
[[nodiscard]] xmllimits::Element elementOf(const QByteArray& xml);

/// A styles document.
/// @param pageAttributes attributes of the page layout, empty for an inch document of
///                       612 by 792 points
/// @param styles         content of its office:styles
[[nodiscard]] QByteArray stylesXml(const QByteArray& pageAttributes = {},
                                   const QByteArray& styles = {});

/// The content document of a drawing: `shapes` are on its first page.
[[nodiscard]] QByteArray drawingXml(const QByteArray& shapes, const QByteArray& styles = {});

/// The content document of a text.
[[nodiscard]] QByteArray textXml(const QByteArray& text, const QByteArray& styles = {});

/// The content document of any body.
[[nodiscard]] QByteArray contentXml(const QByteArray& body, const QByteArray& styles = {});

/// A package in a temporary folder.
class Package
{
public:
    Package() = default;
    Package(const QByteArray& styles, const QByteArray& content);

    Package& add(const QString& name, const QByteArray& data);
    /// Stores the members uncompressed instead of deflated.
    Package& storeUncompressed();
    /// Writes the package and returns its path.
    [[nodiscard]] QString write();
    /// Writes these bytes instead of the package and returns the path.
    [[nodiscard]] QString writeRaw(const QByteArray& bytes);
    /// The package as it will be written.
    [[nodiscard]] QByteArray bytes();

private:
    QTemporaryDir m_folder;
    QMap<QString, QByteArray> m_members;
    int m_written = 0;
    bool m_isUncompressed = false;
};
