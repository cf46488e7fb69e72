#pragma once

#include <QHash>
#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

namespace repair {

class Node;

/// Computes the numbers of a draw:enhanced-geometry: constants, names of its box, "$0" for a
/// modifier, "?f1" for one of its equations.
class Formulas
{
public:
    /// @param size of the shape in points; formulas may ask for it
    Formulas(const Node& geometry, const QSizeF& size);

    [[nodiscard]] const QRectF& viewBox() const { return m_viewBox; }
    /// A coordinate of a path: a formula; or a number, where the far side of the box moves
    /// with a box that was widened.
    [[nodiscard]] std::optional<double> coordinate(QStringView text, Qt::Orientation direction);
    /// The value of a formula; nothing if it cannot be computed.
    [[nodiscard]] std::optional<double> value(QStringView formula);

private:
    friend class FormulaParser;

    [[nodiscard]] std::optional<double> equation(const QString& name);
    [[nodiscard]] std::optional<double> constant(QStringView name) const;

    QRectF m_viewBox;
    QSizeF m_givenSize; // of the box, before it was widened
    QSizeF m_size;
    QList<double> m_modifiers;
    QHash<QString, QString> m_equations;
    QHash<QString, double> m_known;
    double m_stretchX = 0.0;
    double m_stretchY = 0.0;
    int m_depth = 0;
    int m_steps = 0;
};

} // namespace repair
