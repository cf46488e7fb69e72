#pragma once

#include <QString>

#include <functional>

/// Style texts of SVG documents.
namespace workbench::symbols {

/// Whether the text names something outside the document: a url() that is no "#fragment",
/// an import, or an escape that could hide either.
[[nodiscard]] bool pointsOutside(QStringView css);

/// Replaces the value of one declaration; an empty answer leaves the declaration out.
using DeclarationFilter = std::function<QString(const QString& name, const QString& value)>;

/// A `style` attribute with every declaration passed through the filter; those that point
/// outside are left out.
[[nodiscard]] QString filterDeclarations(const QString& style, const DeclarationFilter& filter);

/// The text of a `style` element, or nothing at all when any of it points outside.
[[nodiscard]] QString filterStyleSheet(const QString& css, bool keepDashes);

/// The values of all stroke-dasharray declarations of a style sheet.
[[nodiscard]] QStringList dashArrays(const QString& css);

/// The text inside each url(#...) of an attribute's value.
[[nodiscard]] QStringList urlFragments(QStringView value);

} // namespace workbench::symbols
