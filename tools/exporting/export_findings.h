#pragma once

#include <QList>
#include <QString>

namespace exporting {

/// What became of an item in a format that cannot express all items.
enum class Fidelity : quint8 {
    Exact,      ///< an object of the same kind, with the same appearance
    Picture,    ///< the same appearance, but a picture
    Simplified, ///< something was changed
};

/// The fidelity as reports write it: "exact", "picture", "simplified".
[[nodiscard]] QString nameOf(Fidelity fidelity);

/// The items of one kind with the same result.
struct ExportFinding
{
    Fidelity fidelity = Fidelity::Exact;
    QString kind; ///< a code of workbench/items/shape_kinds.h; "label" for the label itself
    QString text; ///< user-visible reason; empty for exact items
    qint64 count = 1;
    bool operator==(const ExportFinding&) const = default;
};

/// "Ellipse: exact", in the language of the user.
[[nodiscard]] QString describe(const ExportFinding& finding);

/// Counts findings.
class ExportFindings
{
public:
    /// Counts one item of a kind; items with the same result and reason share a finding.
    void add(Fidelity fidelity, const QString& kind, const QString& text = {})
    {
        add({fidelity, kind, text, 1});
    }
    void add(const ExportFinding& finding);
    void add(const ExportFindings& others);
    [[nodiscard]] const QList<ExportFinding>& all() const { return m_all; }

private:
    QList<ExportFinding> m_all;
};

} // namespace exporting
