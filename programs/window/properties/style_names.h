#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <Qt>

namespace window {

/// One choice of a property.
struct NamedCode
{
    int code = 0;
    QString name;

    bool operator==(const NamedCode&) const = default;
};

// Names of the numbers in item values. An unknown number is shown as a number.

[[nodiscard]] QString colorName(const QColor& color);
[[nodiscard]] QString angleText(double degrees);
[[nodiscard]] QString penStyleName(int style);
[[nodiscard]] QString capStyleName(int style);
[[nodiscard]] QString joinStyleName(int style);
[[nodiscard]] QString brushStyleName(int style);
[[nodiscard]] QString lineMarkerName(int marker);
[[nodiscard]] QString alignmentName(Qt::Alignment alignment);
[[nodiscard]] QString fixedSidesName(int limiting);

// All known numbers, for a list to choose from.
[[nodiscard]] QList<NamedCode> penStyleChoices();
[[nodiscard]] QList<NamedCode> capStyleChoices();
[[nodiscard]] QList<NamedCode> joinStyleChoices();
[[nodiscard]] QList<NamedCode> brushStyleChoices();
[[nodiscard]] QList<NamedCode> startMarkerChoices();
[[nodiscard]] QList<NamedCode> endMarkerChoices();
[[nodiscard]] QList<NamedCode> fixedSidesChoices();

/// One horizontal and one vertical flag, as alignmentName() reads them.
[[nodiscard]] int alignmentCode(Qt::Alignment alignment);
[[nodiscard]] QList<NamedCode> alignmentChoices();

} // namespace window
