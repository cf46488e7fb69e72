#pragma once

#include "repair/document.h"

#include <QByteArray>
#include <QString>

/// A drawing whose page contains this XML.
///
/// @param styles    automatic styles of the content
/// @param common    children of office:styles, with the master styles after them
[[nodiscard]] QByteArray drawingContent(const QByteArray& shapes, const QByteArray& styles = {});
[[nodiscard]] QByteArray drawingStyles(const QByteArray& common = {},
                                       const QByteArray& automatic = {},
                                       const QByteArray& masters = {});
[[nodiscard]] repair::Document drawing(const QByteArray& shapes, const QByteArray& styles = {},
                                       const QByteArray& common = {});

/// The first object of the page with this tag; fails the test if there is none.
[[nodiscard]] repair::Node& object(const repair::Document& document, const QString& tag);
/// The tags of all objects, in their order, separated by blanks.
[[nodiscard]] QString tags(const repair::Document& document);
/// The drawing that the first drawn frame of the page shows.
[[nodiscard]] QString drawingOf(const repair::Document& document);

/// Writes a package; returns its path below the folder.
///
/// @param members further ones by their names
[[nodiscard]] QString writePackage(const QString& folder, const QByteArray& content,
                                   const QByteArray& styles,
                                   const QHash<QString, QByteArray>& members = {});
