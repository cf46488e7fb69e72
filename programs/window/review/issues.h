#pragma once

#include "window/label/open_label.h"

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace window {

/// The groups of issues, as `labelport inspect` has them.
enum class IssueGroup : quint8 { Lost, Changed, Warning, Repaired };

/// One issue of the open label, for the user.
struct Issue
{
    IssueGroup group = IssueGroup::Warning;
    QString code = {}; ///< of migration/model/loss_kinds.h, or empty
    QString text = {};
    QString advice = {};        ///< what the user can do; may be empty
    qint64 count = 1;           ///< number of occurrences
    QString about = {};         ///< names of the objects concerned; may be empty
    QList<int> items = {};      ///< indices of the items concerned
    QList<QRectF> missing = {}; ///< where lost objects were, in points on the canvas
    bool operator==(const Issue&) const = default;
};

/// The current issues of the label: those of its report with its repairs, and items that cannot
/// show their content in the current record.
[[nodiscard]] QList<Issue> currentIssues(const OpenLabel& label);

/// The user-visible title of a group.
[[nodiscard]] QString titleOf(IssueGroup group);

} // namespace window
