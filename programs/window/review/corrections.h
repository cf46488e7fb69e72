#pragma once

#include "window/edit/commands.h"
#include "window/review/issues.h"

#include <QColor>
#include <QList>
#include <QSizeF>
#include <QString>

#include <optional>

namespace window {

/// What the issues panel offers to correct.
enum class Correction : quint8 { Delete, ReplaceFont, SetColor, Rescale, Bind };

/// The corrections that can help with an issue.
[[nodiscard]] QList<Correction> correctionsFor(const Issue& issue);

/// The font family of an item; empty for none. That of a formatted text is its first one.
[[nodiscard]] QString familyOf(const workbench::ItemValues& values);

// Each function returns the items that change.

/// Replaces font families wherever they are used.
[[nodiscard]] QList<ItemChange> withFont(const QList<workbench::CanvasItem*>& items,
                                         const QStringList& from, const QString& to);

/// Colors texts and barcodes. Of all other items, the fill if they are filled, else the outline.
[[nodiscard]] QList<ItemChange> withColor(const QList<workbench::CanvasItem*>& items,
                                          const QColor& color);

/// Scales positions and sizes.
/// @param withFonts also fonts and the widths of lines
[[nodiscard]] QList<ItemChange> scaled(const QList<workbench::CanvasItem*>& items, double factor,
                                       bool withFonts);

/// Binds the items that can be bound to all fields of a data source.
[[nodiscard]] QList<ItemChange> bound(const QList<workbench::CanvasItem*>& items, int source);

/// A paper size in points, from a text such as "100 × 60 mm"; nothing for other texts and for
/// sizes that no label has.
[[nodiscard]] std::optional<QSizeF> paperOf(const QString& text);

} // namespace window
