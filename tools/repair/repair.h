#pragma once

#include "repair/item_plan.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace repair {

/// Most pages of a document that become labels of their own. Each takes as long as the first.
inline constexpr int MaximumPages = 200;

/// One kind of repair that was made.
struct Repair
{
    /// Stable name, for reports.
    QString code;
    int count = 0;
    bool operator==(const Repair&) const = default;
};

/// A document that the reader imports more completely than the original.
struct RepairedPage
{
    /// An OpenDocument package with only what the reader reads.
    QByteArray package;
    QList<Repair> repairs;
    /// What to set on the items after the import.
    PagePlan plan;
    /// Pages of the original, at least 1. Each becomes a document of its own. Those of a text
    /// document are where its last editor had breaks.
    int pageCount = 1;
};

/// Rewrites one page of an OpenDocument drawing or text. The file is only read, and nothing that it
/// names is opened.
///
/// @param number of the page, from 1
/// @return nothing if the file is not such a document, or damaged, or larger than the limits
[[nodiscard]] std::optional<RepairedPage> repairPage(const QString& fileName, int number = 1);

/// A sentence for the user about a repair; the code itself if it is unknown.
[[nodiscard]] QString repairText(const Repair& repair);

} // namespace repair
